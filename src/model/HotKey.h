#pragma once

#include "model/JsonReader.h"
#include "model/JsonWriter.h"

#include <QString>
#include <QStringList>
#include <cstdint>

namespace velmora {

/// The combination that shows and hides the bar. It is matched by the key's position, whatever the
/// layout types there, and with other modifiers held as well.
struct HotKey {
    QStringList modifiers{QStringLiteral("Option")}; ///< by name, as in PressKeyCombo
    std::uint16_t keyCode = 46;                      ///< the position of M, as KeyCode counts
    QString key = QStringLiteral("M");               ///< what the key was called when it was chosen
    bool operator==(const HotKey&) const = default;

    /// Whether it can be had without taking what people type: with Command, Option or Control, and
    /// at a known position.
    bool isUsable() const;

    /// As this platform's keyboards call it: "Alt+M".
    QString name() const;
};

/// The stored JSON form.
void write(JsonWriter& writer, const HotKey& hotKey);
/// Throws a DecodingError when `hotKey` is not the stored form of a usable one.
HotKey readHotKey(const JsonReader& hotKey);

} // namespace velmora
