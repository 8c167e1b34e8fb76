#include "input/CapturedKey.h"

#include "actions/KeyNames.h"

namespace velmora::CapturedKey {
namespace {

QStringView symbol(EventFlags flag) {
    switch (flag) {
    case kCGEventFlagMaskCommand:
        return u"⌘";
    case kCGEventFlagMaskAlternate:
        return u"⌥";
    case kCGEventFlagMaskControl:
        return u"⌃";
    case kCGEventFlagMaskShift:
        return u"⇧";
    default:
        return {};
    }
}

} // namespace

QStringList modifierNames(EventFlags flags) {
    QStringList names;
    for (const KeyNames::Modifier& modifier : KeyNames::modifiers) {
        if (flags & modifier.flag)
            names.append(modifier.name);
    }
    return names;
}

QString keyName(KeyCode keyCode, const QString& characters) {
    return KeyNames::nameOfPosition(keyCode).value_or(characters.toUpper());
}

QString combinationSymbols(const QStringList& modifiers, const QString& key) {
    QString text;
    for (const QString& name : modifiers)
        text += symbol(KeyNames::modifierFlag(name).value_or(0));
    return text + key;
}

} // namespace velmora::CapturedKey
