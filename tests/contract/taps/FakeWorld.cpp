#include "World.h"
#include "support/FakeEventTaps.h"

#include <QHash>

using namespace Qt::StringLiterals;

namespace velmora::test {
namespace {

class FakeWorld final : public World {
public:
    EventTaps& taps() override { return taps_; }

    void type(const Key& key, EventFlags flags, const TapUnderTest&) override {
        if (flags)
            taps_.sendFlags(flags);
        static const QHash<KeyCode, QString> labels{
            {keyA.code, u"a"_s},
            {keyM.code, u"m"_s},
            {keyF5.code, u"F5"_s},
            {keypad1.code, u"1"_s}};
        taps_.sendKey(key.code, flags, labels.value(key.code));
        taps_.send({.type = EventType::keyUp, .keyCode = key.code, .flags = flags});
        if (flags)
            taps_.sendFlags(0);
    }

    void click(std::int64_t number, const TapUnderTest&) override { taps_.sendButton(number); }

    std::vector<std::int64_t> reachedFront() override {
        std::vector<std::int64_t> presses;
        for (const TapEvent& event : taps_.passedOn) {
            if (event.type == EventType::keyDown)
                presses.push_back(event.keyCode);
            else if (event.type == EventType::otherMouseDown)
                presses.push_back(event.buttonNumber);
        }
        return presses;
    }

    void holdElsewhere(bool hold) override { taps_.setHeldElsewhere(hold); }
    void holdKeyboardElsewhere(bool hold) override { taps_.setHeldElsewhere(hold); }

    bool isKeyboardFree() override {
        return std::ranges::none_of(taps_.taps, [](const FakeEventTaps::Tap* tap) {
            return tap->granted && std::holds_alternative<TapInterest::EveryKey>(tap->interest);
        });
    }

    QWidget& focusedView() override { return view_; }

private:
    FakeEventTaps taps_;
    QWidget view_;
};

} // namespace

std::unique_ptr<World> makeFakeWorld() {
    return std::make_unique<FakeWorld>();
}

} // namespace velmora::test
