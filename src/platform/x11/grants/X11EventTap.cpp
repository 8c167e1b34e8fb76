#include "platform/x11/grants/X11EventTap.h"

#include "foundation/Log.h"

using namespace Qt::StringLiterals;

namespace velmora {

X11EventTap::X11EventTap(
    MakeGrab makeGrab, std::uint64_t eventsOfInterest, EventTapInterest interest,
    EventTaps::Handler handler)
    : makeGrab_(std::move(makeGrab)),
      eventsOfInterest_(eventsOfInterest),
      interest_(std::move(interest)),
      handler_(std::make_shared<const EventTaps::Handler>(std::move(handler))) {
    timer_.setSingleShot(true);
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { timeOut(); });
}

void X11EventTap::setEnabled(bool enabled) {
    if (!enabled) {
        enabled_ = false;
        timer_.stop();
        pauses_.reset();
        grab_.reset();
    } else if (!enabled_) {
        enabled_ = true;
        if (!grab_)
            createGrab();
        if (pauses_.isFailing())
            timer_.start(pauses_.next());
        else
            tryNow();
    }
}

void X11EventTap::setInterest(EventTapInterest interest) {
    interest_ = std::move(interest);
    if (!grab_)
        return;
    if (!grab_->adopt(interest_))
        createGrab();
    enabled_ = true;
    pauses_.reset(); // what was refused may not be wanted any more
    tryNow();
}

void X11EventTap::createGrab() {
    grab_.reset();
    grab_ = makeGrab_(
        interest_, {.event = [this](const TapEvent& event) { deliver(event); },
                    .changed =
                        [this] {
                            if (enabled_)
                                tryNow();
                        }});
    pauses_ = RetryPauses(grab_->pauses());
}

void X11EventTap::tryNow() {
    timer_.stop();
    if (grab_->obtain())
        noteSuccess();
    else
        noteRefusal();
}

void X11EventTap::noteSuccess() {
    if (pauses_.isFailing())
        Log::writeDiagnostic(refusedName_ + u" works again"_s);
    pauses_.reset();
}

void X11EventTap::noteRefusal() {
    const QString name = grab_->refusedName();
    if (!pauses_.isFailing() || name != refusedName_)
        Log::writeDiagnostic(name + u" is held by another program; trying again"_s);
    refusedName_ = name;
    pauses_.noteRefusal();
    if (grab_->waitsForItsTurn()) {
        timer_.start(pauses_.next());
    } else {
        enabled_ = false;
        timer_.start(0);
    }
}

void X11EventTap::timeOut() {
    if (enabled_) {
        tryNow();
        return;
    }
    const QPointer<QTimer> alive(&timer_);
    deliver({.type = EventType::tapDisabledByUserInput});
    // Left disabled by its handler: nothing stays taken.
    if (alive && !enabled_)
        setEnabled(false);
}

void X11EventTap::deliver(const TapEvent& event) const {
    const bool wanted = event.type == EventType::tapDisabledByUserInput ||
                        (eventsOfInterest_ & eventMaskBit(event.type));
    // What a handler returns cannot be passed on: an asynchronous grab has taken it for good.
    // Handlers swallow what they asked for, so this happens only in the instant of a change.
    if (const auto handler = handler_; wanted && *handler)
        (*handler)(event.type, event);
}

} // namespace velmora
