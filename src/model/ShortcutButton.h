#pragma once

#include "model/ShortcutAction.h"

#include <QString>
#include <QUuid>
#include <optional>

namespace velmora {

/// The side of the camera notch on which a button sits.
enum class ButtonAlignment { left, right };

/// "left" or "right".
QString rawValue(ButtonAlignment alignment);

/// The case with that raw value, compared exactly; nothing for any other text.
std::optional<ButtonAlignment> buttonAlignment(const QString& rawValue);

/// One button of the bar. Equality and hashing use the id alone.
class ShortcutButton {
public:
    ShortcutButton(
        QString title, QString icon, ShortcutAction action,
        ButtonAlignment alignment = ButtonAlignment::left, QUuid id = QUuid::createUuid());

    /// Identity for the button's whole life, also across saves.
    const QUuid& id() const { return id_; }

    QString title;
    QString icon; ///< a symbol name
    ShortcutAction action;
    ButtonAlignment alignment;

    bool operator==(const ShortcutButton& other) const { return id_ == other.id_; }

private:
    QUuid id_;
};

/// What the user calls the button: its title, else what it does.
QString titleOf(const ShortcutButton& button);

inline size_t qHash(const ShortcutButton& button, size_t seed = 0) noexcept {
    return qHash(button.id(), seed);
}

} // namespace velmora
