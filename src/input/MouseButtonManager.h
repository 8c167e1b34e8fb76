#pragma once

#include "input/TrustPoll.h"
#include "model/MouseButtonBinding.h"
#include "model/StoredList.h"
#include "platform/EventTap.h"

#include <QObject>
#include <functional>
#include <memory>
#include <optional>

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

    /// Loads the stored bindings. The services outlive the store. `execute` carries out the action
    /// of a pressed button; `retryPeriod` is the time between two looks for the permission to watch
    /// while it is missing.
    MouseButtonManager(
        UserDefaults& defaults, EventTaps& eventTaps, Accessibility& accessibility, Execute execute,
        std::chrono::milliseconds retryPeriod = TrustPoll::defaultPeriod);

    /// In display order; of several for one button the first is carried out.
    const QList<MouseButtonBinding>& bindings() const { return bindings_.records(); }

    /// Starts watching, as soon as the process is trusted. When the session then allows no tap, the
    /// bindings never fire. Nothing happens while watching.
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

Q_SIGNALS:
    /// Emitted synchronously before each change of the list.
    void bindingsWillChange();

private:
    std::optional<TapEvent> handleMouseEvent(EventType type, const TapEvent& event);
    /// Asks for presses of the buttons that are bound now.
    void watchBoundButtons();
    TapInterest::MouseButtons boundButtons() const;

    StoredList<MouseButtonBinding> bindings_;
    EventTaps& eventTaps_;
    Accessibility& accessibility_;
    const Execute execute_;
    std::unique_ptr<EventTap> eventTap_;
    TrustPoll trustPoll_;
};

} // namespace velmora
