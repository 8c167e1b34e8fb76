#pragma once

#include "platform/InputGrants.h"

#include <algorithm>
#include <set>
#include <vector>

namespace velmora::test {

/// What can be asked for.
enum class Input { hotKey, mouseButton, everyKey };

/// A session's input in memory: a user at a keyboard and a mouse, an application in front, and
/// another program that takes what the test tells it to.
class FakeInputGrants final : public InputGrants {
public:
    class Grant final : public InputGrant {
    public:
        Grant(FakeInputGrants& session, Input grantedInput)
            : InputGrant({true, grantedInput != Input::everyKey, true, true}),
              input(grantedInput),
              session_(session) {
            session.grants.push_back(this);
        }
        ~Grant() override { std::erase(session_.grants, this); }

        void update() {
            const bool exists = input != Input::mouseButton || (button >= 2 && button <= 250);
            if (!session_.offers || !exists)
                setState(State::refused, QStringLiteral("grant_not_offered"));
            else if (session_.otherHas.contains(input))
                setState(State::pending, QStringLiteral("grant_held_by_other"));
            else
                setState(State::granted);
        }
        bool takes(const KeyInput& key) const {
            if (state() != State::granted || input == Input::mouseButton)
                return false;
            return input == Input::everyKey ||
                   (key.kind == KeyInput::Kind::keyDown && key.keyCode == chord.keyCode &&
                    (key.flags & chord.requiredFlags) == chord.requiredFlags);
        }

        const Input input;
        Chord chord;
        std::int64_t button = 0;
        KeyHandler onKey;
        std::function<void()> onButton;

    private:
        FakeInputGrants& session_;
    };

    std::vector<Grant*> grants; ///< all that live, oldest first
    bool offers = true;         ///< false: what is asked for is refused
    std::set<Input> otherHas;   ///< see otherTakes()
    /// Key codes and button numbers.
    std::vector<std::int64_t> pressedInFront, releasedInFront;

    std::unique_ptr<InputGrant> hotKey(const Chord& chord, KeyHandler pressed) override {
        auto grant = std::make_unique<Grant>(*this, Input::hotKey);
        grant->chord = chord;
        grant->onKey = std::move(pressed);
        grant->update();
        return grant;
    }
    std::unique_ptr<InputGrant>
    mouseButton(std::int64_t number, std::function<void()> pressed) override {
        auto grant = std::make_unique<Grant>(*this, Input::mouseButton);
        grant->button = number;
        grant->onButton = std::move(pressed);
        grant->update();
        return grant;
    }
    std::unique_ptr<InputGrant> everyKey(QWidget&, KeyHandler handler) override {
        auto grant = std::make_unique<Grant>(*this, Input::everyKey);
        grant->onKey = std::move(handler);
        grant->update();
        return grant;
    }
    /// The test's key events carry the position itself.
    KeyCode keyCode(std::uint32_t nativeScanCode) const override {
        return static_cast<KeyCode>(nativeScanCode);
    }

    /// Another program has `inputs` from now on, and no others.
    void otherTakes(const std::set<Input>& inputs) {
        otherHas = inputs;
        for (Grant* grant : std::vector(grants))
            grant->update();
    }

    /// The user presses and releases a key, or changes the modifiers; true when a grant got it.
    bool send(const KeyInput& key) {
        auto grant = std::ranges::find_if(grants, [&](const Grant* candidate) {
            return candidate->input == Input::everyKey && candidate->takes(key);
        });
        if (grant == grants.end())
            grant = std::ranges::find_if(
                grants, [&](const Grant* candidate) { return candidate->takes(key); });
        const bool isTaken = grant != grants.end();
        if (key.kind == KeyInput::Kind::keyDown)
            arriveInFront(key.keyCode, isTaken ? *grant : nullptr);
        // A copy: the handler may destroy its grant.
        if (const KeyHandler handler = isTaken ? (*grant)->onKey : nullptr)
            handler(key);
        return isTaken;
    }
    bool sendKey(KeyCode keyCode, EventFlags flags = 0, const QString& characters = {}) {
        return send(
            {.keyCode = keyCode, .flags = flags, .charactersIgnoringModifiers = characters});
    }
    bool sendFlags(EventFlags flags) {
        return send({.kind = KeyInput::Kind::flagsChanged, .flags = flags});
    }
    bool sendButton(std::int64_t number) {
        const auto grant = std::ranges::find_if(grants, [&](const Grant* candidate) {
            return candidate->input == Input::mouseButton && candidate->button == number &&
                   candidate->state() == InputGrant::State::granted;
        });
        const bool isTaken = grant != grants.end();
        arriveInFront(number, isTaken ? *grant : nullptr);
        if (const auto handler = isTaken ? (*grant)->onButton : nullptr)
            handler();
        return isTaken;
    }

private:
    void arriveInFront(std::int64_t number, const Grant* taker) {
        if (!taker)
            pressedInFront.push_back(number);
        if (!taker || taker->properties().passesReleaseOn)
            releasedInFront.push_back(number);
    }
};

} // namespace velmora::test
