#pragma once

#include "support/FakeInputGrants.h"

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
inline const Key keyA{0, "AC01", QStringLiteral("a")};
inline const Key keyM{46, "AB07", QStringLiteral("m")};
inline const Key keyE{14, "AD03"};
inline const Key keyTab{48, "TAB"};
inline const Key keyEscape{53, "ESC"};
inline const Key keyF5{96, "FK05", QStringLiteral("F5")};
inline const Key keypad1{83, "KP1", QStringLiteral("1")};

inline constexpr EventFlags option = kCGEventFlagMaskAlternate, shift = kCGEventFlagMaskShift,
                            control = kCGEventFlagMaskControl, command = kCGEventFlagMaskCommand;
inline constexpr Chord optionM{46, option};

/// A session with its user, an application in front and another program; writes down what the
/// grants made through it give.
class World {
public:
    virtual ~World() = default;

    virtual InputGrants& grants() = 0;
    /// A view of ours, with the keyboard focus from now on.
    virtual QWidget& focusedView() = 0;

    /// Presses a key, with `flags` held, and lets go when it is `enough`.
    void press(const Key& key, EventFlags flags, const std::function<bool()>& enough) {
        hold(key, flags, false, enough);
    }
    /// The same; the key repeats if `repeats`.
    virtual void
    hold(const Key& key, EventFlags flags, bool repeats, const std::function<bool()>& enough) = 0;
    /// Presses and releases a mouse button; returns when that has arrived.
    virtual void click(std::int64_t number) = 0;
    /// Presses and releases a key while `flags` are held; returns when that has arrived.
    void type(const Key& key, EventFlags flags = 0);

    /// The key codes and button numbers whose presses and releases the application in front, or the
    /// focused view, has got.
    virtual std::vector<std::int64_t> pressedInFront() = 0;
    virtual std::vector<std::int64_t> releasedInFront() = 0;

    /// Another program takes Option+M, the fourth button or the keyboard; nothing gives all back.
    virtual void otherTakes(const std::set<Input>& inputs) = 0;

    std::unique_ptr<InputGrant> hotKey(const Chord& chord = optionM);
    std::unique_ptr<InputGrant> button(std::int64_t number);
    std::unique_ptr<InputGrant> everyKey();
    std::unique_ptr<InputGrant> make(Input input);
    /// Does what a grant of `input` gives.
    void use(Input input);

    std::vector<KeyInput> hotKeys;     ///< what hot keys gave
    std::vector<KeyInput> captured;    ///< what every-key grants gave
    std::vector<std::int64_t> buttons; ///< what button grants gave
    /// The presses that some grant gave.
    size_t given() const;

protected:
    /// How many presses have come to anyone.
    size_t arrived() { return given() + pressedInFront().size(); }
};

inline void World::type(const Key& key, EventFlags flags) {
    const size_t before = arrived();
    press(key, flags, [=, this] { return arrived() > before; });
}

inline std::unique_ptr<InputGrant> World::hotKey(const Chord& chord) {
    return grants().hotKey(chord, [this](const KeyInput& key) { hotKeys.push_back(key); });
}

inline std::unique_ptr<InputGrant> World::button(std::int64_t number) {
    return grants().mouseButton(number, [this, number] { buttons.push_back(number); });
}

inline std::unique_ptr<InputGrant> World::everyKey() {
    return grants().everyKey(
        focusedView(), [this](const KeyInput& key) { captured.push_back(key); });
}

inline std::unique_ptr<InputGrant> World::make(Input input) {
    return input == Input::hotKey ? hotKey() : input == Input::mouseButton ? button(3) : everyKey();
}

inline void World::use(Input input) {
    if (input == Input::mouseButton)
        click(3);
    else
        type(keyM, input == Input::hotKey ? option : 0);
}

inline size_t World::given() const {
    return hotKeys.size() + buttons.size() +
           static_cast<size_t>(
               std::ranges::count(captured, KeyInput::Kind::keyDown, &KeyInput::kind));
}

} // namespace velmora::test
