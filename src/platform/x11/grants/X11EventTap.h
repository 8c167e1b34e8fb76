#pragma once

#include "platform/EventTap.h"
#include "platform/x11/grants/RetryPauses.h"
#include "platform/x11/grants/X11Grab.h"

#include <QTimer>

namespace velmora {

/// A tap over a grab: switches it on and off, asks again for what was refused, and tells the
/// handler. Runs a timer only while something is refused.
class X11EventTap final : public EventTap {
public:
    /// Makes the grab that serves an interest.
    using MakeGrab =
        std::function<std::unique_ptr<X11Grab>(const EventTapInterest&, X11Grab::Sink)>;

    X11EventTap(
        MakeGrab makeGrab, std::uint64_t eventsOfInterest, EventTapInterest interest,
        EventTaps::Handler handler);

    void setEnabled(bool enabled) override;
    bool isEnabled() const override { return enabled_; }
    void setInterest(EventTapInterest interest) override;

private:
    void createGrab();
    void tryNow();
    void noteRefusal();
    void noteSuccess();
    void timeOut();
    void deliver(const TapEvent& event) const;

    MakeGrab makeGrab_;
    std::uint64_t eventsOfInterest_;
    EventTapInterest interest_;
    /// Shared, since the tap may be destroyed while it runs.
    std::shared_ptr<const EventTaps::Handler> handler_;
    bool enabled_ = false;
    /// There from being enabled until being disabled, while a refusal is reported too: what was
    /// obtained is kept.
    std::unique_ptr<X11Grab> grab_;
    RetryPauses pauses_{{}};
    QString refusedName_;
    /// Enabled: time for the next try. Disabled by a refusal: time to report it.
    QTimer timer_;
};

} // namespace velmora
