#pragma once

#include "platform/Appearance.h"

#include <QObject>

class QDBusVariant;

namespace velmora {

/// The appearance that the desktop portal announces ("org.freedesktop.appearance color-scheme"),
/// and before it answers, or without it, the GNOME interface setting of that name.
class DesktopAppearance : public QObject, public Appearance {
    Q_OBJECT
public:
    void observe(Handler handler) override;

private Q_SLOTS:
    /// The portal's signal.
    void settingChanged(const QString& group, const QString& key, const QDBusVariant& value);

private:
    void askPortal();
    void portalSays(const QDBusVariant& value);

    Handler handler_;
    bool portalAnswered_ = false;
};

} // namespace velmora
