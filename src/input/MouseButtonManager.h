#pragma once

#include "input/TrustPoll.h"
#include "model/MouseButtonBinding.h"
#include "model/StoredList.h"
#include "platform/InputGrants.h"

#include <QObject>
#include <functional>
#include <map>
#include <memory>

namespace velmora {

/// The mouse button bindings, kept in the user defaults and observable, and the watch over the
/// session's extra mouse buttons that carries them out. Presses of buttons without a binding are
/// left alone. Main thread only.
class MouseButtonManager : public QObject {
    Q_OBJECT
public:
    using Execute = std::function<void(const ShortcutAction& action)>;

    /// The process-wide store over the standard user defaults and the session's services, made on
    /// first use, never destroyed.
    static MouseButtonManager& shared();

    /// Loads the stored bindings. History and services outlive the store. `execute` carries out the
    /// action of a pressed button; `retryPeriod` is the time between two looks for the permission
    /// to watch while it is missing.
    MouseButtonManager(
        UserDefaults& defaults, EditHistory& history, InputGrants& inputGrants,
        Accessibility& accessibility, Execute execute,
        std::chrono::milliseconds retryPeriod = TrustPoll::defaultPeriod);

    /// In display order; of several for one button the first is carried out.
    const QList<MouseButtonBinding>& bindings() const { return bindings_.records(); }

    /// Starts watching, as soon as the process is trusted. A binding whose button the session does
    /// not grant does not fire meanwhile. Nothing happens while watching.
    void startMonitoring();
    /// Ends watching.
    void stopMonitoring();

    /// Appends, or replaces in place the first binding of the same button. Saves.
    void addBinding(const MouseButtonBinding& binding);
    /// Saves; an index out of range changes and saves nothing.
    void removeBinding(qsizetype index);
    /// Replaces the binding at `index`, its id included, even if that makes a second one for its
    /// button. Saves; an index out of range changes and saves nothing.
    void updateBinding(qsizetype index, const MouseButtonBinding& binding);
    /// Takes other bindings in place of all; `name` says why in the history.
    void replaceBindings(const QList<MouseButtonBinding>& bindings, const QString& name);

Q_SIGNALS:
    /// Emitted synchronously before each change of the list.
    void bindingsWillChange();

private:
    void handleMouseEvent(std::int64_t buttonNumber);
    /// Asks for the buttons that are bound now, and gives back those that no longer are.
    void watchBoundButtons();

    StoredList<MouseButtonBinding> bindings_;
    InputGrants& inputGrants_;
    Accessibility& accessibility_;
    const Execute execute_;
    bool isMonitoring_ = false;
    std::map<std::int64_t, std::unique_ptr<InputGrant>> grants_; ///< by button number
    TrustPoll trustPoll_;
};

} // namespace velmora
