#pragma once

#include "support/FakeInputGrants.h"
#include "support/TestDisplay.h"

#include <QWidget>
#include <functional>
#include <gmock/gmock.h>
#include <memory>
#include <vector>

namespace velmora::test {

/// A key by the code of its position, by XKB's name for that, and with what it types.
struct Key {
    KeyCode code;
    const char* name;
    QString character{}; ///< empty where it is not looked at
};
inline const Key keyA{0, "AC01", QStringLiteral("a")}, keyM{46, "AB07", QStringLiteral("m")},
    keyE{14, "AD03"}, keyTab{48, "TAB"}, keyEscape{53, "ESC"},
    keyF5{96, "FK05", QStringLiteral("F5")}, keypad1{83, "KP1", QStringLiteral("1")};

inline constexpr EventFlags option = kCGEventFlagMaskAlternate, shift = kCGEventFlagMaskShift,
                            control = kCGEventFlagMaskControl, command = kCGEventFlagMaskCommand;
inline constexpr Chord optionM{46, option};

/// A session with its user, an application in front and another program. Writes down what its
/// grants give.
class World {
public:
    virtual ~World() = default;

    virtual InputGrants& grants() = 0;
    /// Holds a key and `flags` until it is `enough`; the key repeats if `repeats`.
    virtual void
    hold(const Key& key, EventFlags flags, bool repeats, const std::function<bool()>& enough) = 0;
    /// Presses and releases a mouse button; returns when that has arrived.
    virtual void click(std::int64_t number) = 0;
    /// The key codes and button numbers that the application in front has got.
    virtual std::vector<std::int64_t> pressedInFront() = 0;
    virtual std::vector<std::int64_t> releasedInFront() = 0;
    /// Another program takes just these: Option+M, the fourth button, the keyboard.
    virtual void otherTakes(const std::set<Input>& inputs) = 0;

    /// Presses and releases a key while `flags` are held; returns when that has arrived.
    void type(const Key& key, EventFlags flags = 0) {
        const size_t before = arrived();
        hold(key, flags, false, [=, this] { return arrived() > before; });
    }
    std::unique_ptr<InputGrant> hotKey(const Chord& chord = optionM) {
        return grants().hotKey(chord, [this](const KeyInput& key) { hotKeys.push_back(key); });
    }
    std::unique_ptr<InputGrant> button(std::int64_t number) {
        return grants().mouseButton(number, [this, number] { buttons.push_back(number); });
    }
    std::unique_ptr<InputGrant> everyKey() {
        return grants().everyKey(view, [this](const KeyInput& key) { captured.push_back(key); });
    }
    std::unique_ptr<InputGrant> make(Input input) {
        return input == Input::hotKey     ? hotKey()
               : input == Input::everyKey ? everyKey()
                                          : button(3);
    }

    std::vector<KeyInput> hotKeys, captured; ///< what grants of the two kinds gave
    std::vector<std::int64_t> buttons;
    /// The presses that grants gave.
    size_t given() const {
        const auto isPress = [](const KeyInput& key) {
            return key.kind == KeyInput::Kind::keyDown;
        };
        return hotKeys.size() + buttons.size() +
               static_cast<size_t>(std::ranges::count_if(captured, isPress));
    }

    QWidget view; ///< what keys are captured for

protected:
    /// How many presses have come to anyone.
    size_t arrived() { return given() + pressedInFront().size(); }
};

} // namespace velmora::test
