#pragma once

#include <QByteArrayList>
#include <QString>

namespace velmora {

class Accessibility;
class Appearance;
class InputGrants;
class KeyboardEvents;
class Panels;
class Screens;
class TrayHost;
class WindowActivation;
class Workspace;

/// The desktop session that the program runs in: owns the services through which everything else
/// sees it. Main thread only, unless a service says otherwise.
class Session {
public:
    virtual ~Session() = default;

    /// The one that the program runs in; setCurrent() comes first.
    static Session& current();
    /// It must outlive the last use of current().
    static void setCurrent(Session& session);

    /// What Qt has to be told on its command line to be a client of this very session. Not through
    /// the environment, which whatever is launched from here inherits.
    virtual QByteArrayList qtArguments() const = 0;

    /// Tells this session from others of the same user.
    virtual QString name() const = 0;

    // These need the application object. With the first of them the environment may change: no
    // other thread may be reading it.
    virtual Accessibility& accessibility() = 0;
    virtual Appearance& appearance() = 0;
    virtual InputGrants& inputGrants() = 0;
    virtual KeyboardEvents& keyboardEvents() = 0;
    virtual Panels& panels() = 0;
    virtual Screens& screens() = 0;
    virtual TrayHost& trayHost() = 0;
    virtual WindowActivation& windowActivation() = 0;
    virtual Workspace& workspace() = 0;

    /// Makes ready what the first picture does not need, so that its first use is as quick as later
    /// ones. Call once, when nothing more urgent is left to do.
    virtual void prepareTheRest() = 0;
};

} // namespace velmora
