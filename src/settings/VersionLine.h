#pragma once

#include <QLabel>
#include <QVariantMap>
#include <optional>

namespace velmora {

/// Says which version runs. Without a usable information dictionary it says so in red, and each
/// time it comes on screen writes what is missing to standard output.
class VersionLine : public QLabel {
    Q_OBJECT
public:
    explicit VersionLine(std::optional<QVariantMap> infoDictionary);

protected:
    void showEvent(QShowEvent* event) override;

private:
    const std::optional<QVariantMap> infoDictionary_;
    bool isKnown_;
};

/// Points at the foot of a tab that hold the line. A tab without one leaves them free, so that the
/// buttons above stay where they are from tab to tab.
int versionLineRoom();

/// The localized text of the version, nothing when the dictionary does not hold it.
std::optional<QString> versionText(const std::optional<QVariantMap>& infoDictionary);

} // namespace velmora
