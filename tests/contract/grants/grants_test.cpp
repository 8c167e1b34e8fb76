// What InputGrants promises, of the real session layer and of the fake that other tests rely on.

#include "X11World.h"

using namespace velmora;
using namespace velmora::test;
using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::Field;
using testing::IsEmpty;
using State = InputGrant::State;

namespace {

/// The world of the fake.
class FakeWorld final : public World {
public:
    InputGrants& grants() override { return session_; }
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
};

struct Layer {
    const char* name;
    std::unique_ptr<World> (*make)();
};

class Grants : public testing::TestWithParam<Layer> {
protected:
    const std::unique_ptr<World> world = GetParam().make();
};

TEST_P(Grants, AHotKeyIsTakenAndNothingElse) {
    auto grant = world->hotKey();
    EXPECT_EQ(grant->state(), State::granted);
    EXPECT_TRUE(grant->reason().isEmpty());
    world->type(keyM);
    world->type(keyM, command);
    world->type(keyA, option);
    EXPECT_THAT(world->hotKeys, IsEmpty());
    EXPECT_THAT(world->pressedInFront(), ElementsAre(46, 46, 0));

    size_t presses = 0;
    for (const EventFlags also :
         {EventFlags(0), shift, command, control, shift | command | control}) {
        world->type(keyM, option | also);
        ASSERT_EQ(world->hotKeys.size(), ++presses);
        EXPECT_EQ(world->hotKeys.back().keyCode, 46);
        EXPECT_EQ(world->hotKeys.back().flags, option | also);
        EXPECT_TRUE(world->hotKeys.back().isFresh);
    }
    EXPECT_EQ(world->pressedInFront().size(), 3U);
    const auto released = static_cast<size_t>(std::ranges::count(world->releasedInFront(), 46));
    EXPECT_EQ(released, 2 + (grant->properties().passesReleaseOn ? presses : 0));

    grant.reset();
    world->type(keyM, option);
    EXPECT_EQ(world->pressedInFront().size(), 4U);
}

TEST_P(Grants, ButtonsAreTakenOneByOne) {
    for (const std::int64_t number : {0, 1, -7, 251, 256 + 5}) {
        const auto none = world->button(number);
        EXPECT_EQ(none->state(), State::refused) << number;
        EXPECT_FALSE(none->reason().isEmpty());
    }
    auto third = world->button(3);
    auto fourth = world->button(4);
    for (const std::int64_t number : {0, 2, 3, 4, 5})
        world->click(number);
    EXPECT_THAT(world->buttons, ElementsAre(3, 4));
    EXPECT_THAT(world->pressedInFront(), ElementsAre(0, 2, 5));
    EXPECT_EQ(
        std::ranges::count(world->releasedInFront(), 4), fourth->properties().passesReleaseOn);

    third.reset();
    const auto middle = world->button(2);
    for (const std::int64_t number : {2, 3, 4})
        world->click(number);
    EXPECT_THAT(world->buttons, ElementsAre(3, 4, 2, 4));
    EXPECT_THAT(world->pressedInFront(), ElementsAre(0, 2, 5, 3));
}

TEST_P(Grants, WhatAnotherProgramHoldsIsPendingUntilItLetsGo) {
    for (const Input input : {Input::hotKey, Input::mouseButton, Input::everyKey}) {
        SCOPED_TRACE(static_cast<int>(input));
        world->otherTakes({input});
        auto grant = world->make(input);
        EXPECT_EQ(grant->state(), State::pending);
        EXPECT_FALSE(grant->reason().isEmpty());
        std::vector<State> states;
        grant->onStateChange = [&] { states.push_back(grant->state()); };
        world->otherTakes({});
        EXPECT_TRUE(waitFor([&] { return !states.empty(); }));
        EXPECT_THAT(states, ElementsAre(State::granted));
        EXPECT_TRUE(grant->reason().isEmpty());
        const size_t before = world->given();
        const auto use = [&] {
            input == Input::mouseButton ? world->click(3) : world->type(keyM, option);
        };
        use();
        EXPECT_EQ(world->given(), before + 1);
        // It ends at once with the grant.
        grant.reset();
        use();
        EXPECT_EQ(world->given(), before + 1);
    }
}

TEST_P(Grants, EveryKeyComesWithItsFlagsAndCharacters) {
    const auto hotKey = world->hotKey();
    auto grant = world->everyKey();
    EXPECT_EQ(grant->state(), State::granted);
    const std::pair<Key, EventFlags> cases[] = {
        {keyA, 0},       {keyTab, 0},
        {keyEscape, 0},  {keyTab, option},
        {keyE, command}, {keyM, option},
        {keyM, control}, {keyF5, 0},
        {keypad1, 0},    {keyEscape, command | shift | option}};
    const auto isPress = Field(&KeyInput::kind, KeyInput::Kind::keyDown);
    for (const auto& [key, flags] : cases) {
        SCOPED_TRACE(key.name);
        world->captured.clear();
        world->type(key, flags);
        const auto& captured = world->captured;
        const auto press = std::ranges::find(captured, KeyInput::Kind::keyDown, &KeyInput::kind);
        ASSERT_NE(press, captured.end());
        EXPECT_EQ(press->keyCode, key.code);
        EXPECT_EQ(press->flags, flags);
        if (!key.character.isEmpty()) {
            EXPECT_EQ(press->charactersIgnoringModifiers, key.character);
        }
        if (flags) {
            EXPECT_THAT(captured.front(), testing::Not(isPress));
            EXPECT_TRUE(captured.front().isFresh);
            EXPECT_TRUE(waitFor([&] { return captured.back().flags == 0; }));
            EXPECT_FALSE(captured.back().isFresh);
        } else {
            EXPECT_EQ(captured.size(), 1U) << "no release, no modifier change";
        }
    }
    EXPECT_THAT(world->hotKeys, IsEmpty());
    EXPECT_THAT(world->pressedInFront(), IsEmpty());
    EXPECT_EQ(world->releasedInFront().empty(), !grant->properties().passesReleaseOn);
}

TEST_P(Grants, AHeldKeyRepeatsAndIsMarked) {
    const auto hotKey = world->hotKey();
    world->hold(keyM, option, true, [&] { return world->hotKeys.size() >= 4; });
    EXPECT_TRUE(world->hotKeys.at(0).isFresh);
    world->hotKeys.erase(world->hotKeys.begin());
    EXPECT_THAT(world->hotKeys, Each(Field(&KeyInput::isFresh, false)));

    // Down before the grant.
    std::unique_ptr<InputGrant> grant;
    world->hold(keyA, 0, true, [&] {
        if (!grant && !world->pressedInFront().empty())
            grant = world->everyKey();
        return world->captured.size() >= 2;
    });
    EXPECT_THAT(world->captured, Each(Field(&KeyInput::isFresh, false)));
}

TEST_P(Grants, HandlersMayEndTheirGrant) {
    std::unique_ptr<InputGrant> grant;
    int ended = 0;
    const auto end = [&](auto& given, const auto& event) {
        grant.reset();
        given.push_back(event);
        ++ended; // what the handler has captured is there to its end
    };
    grant = world->grants().hotKey(
        optionM, [&, end](const KeyInput& key) { end(world->hotKeys, key); });
    world->type(keyM, option);
    grant = world->grants().mouseButton(3, [&, end] { end(world->buttons, 3); });
    world->click(3);
    grant = world->grants().everyKey(
        world->view, [&, end](const KeyInput& key) { end(world->captured, key); });
    world->type(keyA);
    EXPECT_EQ(ended, 3);
    for (const Input input : {Input::hotKey, Input::mouseButton, Input::everyKey}) {
        world->otherTakes({input});
        grant = world->make(input);
        grant->onStateChange = [&] { grant.reset(); };
        world->otherTakes({});
        EXPECT_TRUE(waitFor([&] { return !grant; }));
    }
}

INSTANTIATE_TEST_SUITE_P(
    Layers, Grants,
    testing::Values(
        Layer{"fake", []() -> std::unique_ptr<World> { return std::make_unique<FakeWorld>(); }},
        Layer{"x11", []() -> std::unique_ptr<World> { return std::make_unique<X11World>(); }}),
    [](const auto& layer) { return std::string(layer.param.name); });

} // namespace
