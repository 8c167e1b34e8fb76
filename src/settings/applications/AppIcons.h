#pragma once

#include <QCache>
#include <QIcon>
#include <QList>
#include <QObject>
#include <QPixmap>
#include <optional>

namespace velmora {

struct AppInfo;

/// Pictures of applications' icons, 32 points square; the latest few hundred are kept. They are
/// read and drawn one after the other beside the main thread, the last one asked for first: a file
/// may be large, or lie on a disk that does not answer. Main thread only.
class AppIcons : public QObject {
    Q_OBJECT
public:
    static constexpr int side = 32;

    AppIcons() : pixmaps_(capacity) {}
    /// What looking up icons has left in the process-wide cache goes too.
    ~AppIcons() override;

    /// The picture at `devicePixelRatio`, null for an application without one and while it is being
    /// loaded; nothing when it is to be asked for.
    std::optional<QPixmap> find(const AppInfo& app, double devicePixelRatio) const;

    /// Asks for it; looking it up takes a part of a millisecond.
    void load(const AppInfo& app, double devicePixelRatio);

Q_SIGNALS:
    /// A picture is there, or it is clear that there is none.
    void loaded();

private:
    static constexpr int capacity = 256;

    struct Request {
        QString key;
        QIcon themed; ///< null for a picture in a file of its own
        QString file;
        double devicePixelRatio;
    };
    static QImage picture(const Request& request);
    void readNext();

    QCache<QString, QPixmap> pixmaps_; ///< by path
    QList<Request> waiting_;
    bool isReading_ = false;
};

} // namespace velmora
