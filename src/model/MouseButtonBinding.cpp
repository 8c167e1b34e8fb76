#include "model/MouseButtonBinding.h"

#include "foundation/LocalizedString.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

/// `number` + 1, the way people count buttons. The greatest number has a successor here too.
QString successor(std::int64_t number) {
    return number < 0 ? QString::number(number + 1)
                      : QString::number(static_cast<std::uint64_t>(number) + 1);
}

} // namespace

const QString MouseButtonBinding::userDefaultsKey = u"SavedMouseBindings"_s;

MouseButtonBinding::MouseButtonBinding(std::int64_t number, ShortcutAction boundAction, QUuid id)
    : buttonNumber(number), action(std::move(boundAction)), id_(id) {}

QString MouseButtonBinding::buttonDisplayName() const {
    switch (buttonNumber) {
    case 0:
        return localizedString("mouse_click_left");
    case 1:
        return localizedString("mouse_click_right");
    case 2:
        return localizedString("mouse_click_middle");
    case 3:
        return localizedString("mouse_click_btn4");
    case 4:
        return localizedString("mouse_click_btn5");
    default:
        return localizedString("mouse_click_btn_format").arg(successor(buttonNumber));
    }
}

void write(JsonWriter& writer, const MouseButtonBinding& binding) {
    writer.beginObject();
    writer.member("id"_L1);
    write(writer, binding.id());
    writer.member("buttonNumber"_L1);
    writer.integer(binding.buttonNumber);
    writer.member("action"_L1);
    write(writer, binding.action);
    writer.endObject();
}

MouseButtonBinding readMouseButtonBinding(const JsonReader& binding) {
    const QUuid id = binding.member("id"_L1).uuid();
    const std::int64_t buttonNumber = binding.member("buttonNumber"_L1).integer();
    return {buttonNumber, readAction(binding.member("action"_L1)), id};
}

} // namespace velmora
