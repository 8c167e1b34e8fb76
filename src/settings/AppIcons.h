#pragma once

#include <QCache>
#include <QPixmap>
#include <optional>

namespace velmora {

struct AppInfo;

/// Pictures of applications' icons, 32 points square; the latest few hundred are kept. Main thread
/// only.
class AppIcons {
public:
    static constexpr int side = 32;

    AppIcons() : pixmaps_(capacity) {}
    /// What looking up icons has left in the process-wide cache goes too.
    ~AppIcons();

    /// The picture at `devicePixelRatio`, null for an application without one; nothing when it was
    /// not loaded yet.
    std::optional<QPixmap> find(const AppInfo& app, double devicePixelRatio) const;

    /// Loads it; takes a millisecond or a few.
    void load(const AppInfo& app, double devicePixelRatio);

private:
    static constexpr int capacity = 256;

    QCache<QString, QPixmap> pixmaps_; ///< by path
};

} // namespace velmora
