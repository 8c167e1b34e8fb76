#include "model/ShortcutButton.h"

using namespace Qt::StringLiterals;

namespace velmora {

QString rawValue(ButtonAlignment alignment) {
    return alignment == ButtonAlignment::left ? u"left"_s : u"right"_s;
}

std::optional<ButtonAlignment> buttonAlignment(const QString& rawValue) {
    if (rawValue == "left"_L1)
        return ButtonAlignment::left;
    if (rawValue == "right"_L1)
        return ButtonAlignment::right;
    return std::nullopt;
}

ShortcutButton::ShortcutButton(
    QString label, QString symbol, ShortcutAction onClick, ButtonAlignment side, QUuid id)
    : title(std::move(label)),
      icon(std::move(symbol)),
      action(std::move(onClick)),
      alignment(side),
      id_(id) {}

QString titleOf(const ShortcutButton& button) {
    return button.title.isEmpty() ? displayName(button.action) : button.title;
}

} // namespace velmora
