#pragma once

#include "support/XClient.h"

#include <QHash>

namespace velmora::test {

/// The user's hands: moves the pointer, presses buttons and keys. Each call returns when the server
/// has done it. Keys are named by position as XKB names them ("AC01" is A, "LALT" the left Alt).
class Driver {
public:
    /// Which device a key is pressed on: the one that XTEST clients share, or the keyboard itself.
    enum class Keyboard { Synthetic, Physical };

    Driver();
    /// Lets go of everything that this driver still holds.
    ~Driver();

    /// Pixels from the screen's top-left corner.
    void move(int x, int y);
    void pressButton(uint8_t button);
    void releaseButton(uint8_t button);
    void click(uint8_t button = 1);

    void pressKey(const QByteArray& position, Keyboard keyboard = Keyboard::Synthetic);
    void releaseKey(const QByteArray& position, Keyboard keyboard = Keyboard::Synthetic);
    void tapKey(const QByteArray& position, Keyboard keyboard = Keyboard::Synthetic);
    /// Presses and releases a key while a modifier key is held.
    void tapChord(const QByteArray& modifier, const QByteArray& position);

    /// The keycode of a position; throws when there is none.
    uint8_t keycode(const QByteArray& position) const;

private:
    struct Held {
        uint8_t releaseType;
        uint8_t detail;
        uint8_t device;
        bool operator==(const Held&) const = default;
    };
    void send(uint8_t type, uint8_t detail, uint8_t device = 0);
    void press(uint8_t type, const Held& held);
    void release(const Held& held);
    Held heldKey(const QByteArray& position, Keyboard keyboard) const;

    XClient client_;
    QHash<QByteArray, uint8_t> keycodes_;
    uint8_t physicalKeyboard_ = 0;
    uint8_t inputEventBase_ = 0;
    std::vector<Held> held_;
};

} // namespace velmora::test
