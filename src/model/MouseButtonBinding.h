#pragma once

#include "model/ShortcutAction.h"
#include "model/StoredForm.h"

#include <QString>
#include <QUuid>
#include <cstdint>

namespace velmora {

/// A mouse button and what pressing it does. Equality and hashing use the id alone.
class MouseButtonBinding {
public:
    MouseButtonBinding(
        std::int64_t number, ShortcutAction boundAction, QUuid id = QUuid::createUuid());

    /// Where the list of bindings is stored.
    static const QString userDefaultsKey;

    /// Identity for the binding's whole life, also across saves.
    const QUuid& id() const { return id_; }

    std::int64_t buttonNumber; ///< 0 left, 1 right, 2 middle, 3 the fourth button, …
    ShortcutAction action;

    /// The button's name in the user's language.
    QString buttonDisplayName() const;

    bool operator==(const MouseButtonBinding& other) const { return id_ == other.id_; }

private:
    QUuid id_;
};

/// What the user calls the binding: its button's name.
inline QString titleOf(const MouseButtonBinding& binding) {
    return binding.buttonDisplayName();
}

inline size_t qHash(const MouseButtonBinding& binding, size_t seed = 0) noexcept {
    return qHash(binding.id(), seed);
}

/// The stored JSON form, for encodedList() and decodedList().
void write(JsonWriter& writer, const MouseButtonBinding& binding);
/// Throws a DecodingError when `binding` is not the stored form of a binding.
MouseButtonBinding readMouseButtonBinding(const JsonReader& binding);

} // namespace velmora
