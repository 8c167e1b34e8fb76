#include "actions/KeyNames.h"

#include <algorithm>

namespace velmora::KeyNames {
namespace {

enum class Kind { named, letter, digit };

struct Key {
    QStringView name;
    KeyCode code;
    Kind kind;
};

// Codes of the positions on the ANSI (US) keyboard.
constexpr Key keys[] = {
    {u"Return", 36, Kind::named},
    {u"Tab", 48, Kind::named},
    {u"Space", 49, Kind::named},
    {u"Delete", 51, Kind::named},
    {u"Escape", 53, Kind::named},
    {u"←", 123, Kind::named},
    {u"→", 124, Kind::named},
    {u"↓", 125, Kind::named},
    {u"↑", 126, Kind::named},
    {u"PageUp", 116, Kind::named},
    {u"PageDown", 121, Kind::named},
    {u"Home", 115, Kind::named},
    {u"End", 119, Kind::named},
    // clang-format off
    {u"A", 0, Kind::letter},  {u"B", 11, Kind::letter}, {u"C", 8, Kind::letter},
    {u"D", 2, Kind::letter},  {u"E", 14, Kind::letter}, {u"F", 3, Kind::letter},
    {u"G", 5, Kind::letter},  {u"H", 4, Kind::letter},  {u"I", 34, Kind::letter},
    {u"J", 38, Kind::letter}, {u"K", 40, Kind::letter}, {u"L", 37, Kind::letter},
    {u"M", 46, Kind::letter}, {u"N", 45, Kind::letter}, {u"O", 31, Kind::letter},
    {u"P", 35, Kind::letter}, {u"Q", 12, Kind::letter}, {u"R", 15, Kind::letter},
    {u"S", 1, Kind::letter},  {u"T", 17, Kind::letter}, {u"U", 32, Kind::letter},
    {u"V", 9, Kind::letter},  {u"W", 13, Kind::letter}, {u"X", 7, Kind::letter},
    {u"Y", 16, Kind::letter}, {u"Z", 6, Kind::letter},
    {u"0", 29, Kind::digit},  {u"1", 18, Kind::digit},  {u"2", 19, Kind::digit},
    {u"3", 20, Kind::digit},  {u"4", 21, Kind::digit},  {u"5", 23, Kind::digit},
    {u"6", 22, Kind::digit},  {u"7", 26, Kind::digit},  {u"8", 28, Kind::digit},
    {u"9", 25, Kind::digit},
    // clang-format on
};

template<typename Predicate>
const Key* find(Predicate predicate) {
    const auto* found = std::ranges::find_if(keys, predicate);
    return found == std::end(keys) ? nullptr : found;
}

} // namespace

std::optional<EventFlags> modifierFlag(const QString& name) {
    const auto* found = std::ranges::find(modifiers, name, &Modifier::name);
    return found == modifiers.end() ? std::nullopt : std::optional(found->flag);
}

std::optional<KeyCode> keyCode(const QString& name) {
    const Key* key =
        find([&](const Key& row) { return row.kind == Kind::named && row.name == name; });
    if (!key) {
        // Full upper-casing may make one character several ("ß" to "SS"): then no row matches.
        const QString upper = name.toUpper();
        key = find([&](const Key& row) { return row.kind != Kind::named && row.name == upper; });
    }
    return key ? std::optional(key->code) : std::nullopt;
}

std::optional<QString> nameOfPosition(KeyCode code) {
    const Key* key =
        find([&](const Key& row) { return row.kind != Kind::letter && row.code == code; });
    return key ? std::optional(key->name.toString()) : std::nullopt;
}

} // namespace velmora::KeyNames
