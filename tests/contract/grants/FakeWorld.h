#pragma once

#include "World.h"

namespace velmora::test {

/// The world of the fake that other tests use.
class FakeWorld final : public World {
public:
    InputGrants& grants() override { return session_; }
    QWidget& focusedView() override { return view_; }

    void
    hold(const Key& key, EventFlags flags, bool, const std::function<bool()>& enough) override {
        if (flags)
            session_.sendFlags(flags);
        for (bool isFresh = true; isFresh || !enough(); isFresh = false)
            session_.send(
                {.keyCode = key.code,
                 .flags = flags,
                 .charactersIgnoringModifiers = key.character,
                 .isFresh = isFresh});
        if (flags)
            session_.send({.kind = KeyInput::Kind::flagsChanged, .isFresh = false});
    }
    void click(std::int64_t number) override { session_.sendButton(number); }
    std::vector<std::int64_t> pressedInFront() override { return session_.pressedInFront; }
    std::vector<std::int64_t> releasedInFront() override { return session_.releasedInFront; }
    void otherTakes(const std::set<Input>& inputs) override { session_.otherTakes(inputs); }

private:
    FakeInputGrants session_;
    QWidget view_;
};

} // namespace velmora::test
