// Any bytes under the list's key either end in an error or read as buttons which, written and read
// again, are the same in every field.

#include "model/StoredForm.h"

#include <algorithm>
#include <cstdlib>

using namespace velmora;

namespace {

void check(bool condition) {
    if (!condition)
        std::abort();
}

bool identical(const ShortcutButton& one, const ShortcutButton& other) {
    return one.id() == other.id() && one.title == other.title && one.icon == other.icon &&
           one.action == other.action && one.alignment == other.alignment;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const auto json = QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const auto first = decodedList(json, readButton);
    if (const auto* error = std::get_if<DecodingError>(&first)) {
        check(!error->description.isEmpty());
        return 0;
    }
    const auto& buttons = std::get<0>(first);
    const QByteArray written = encodedList(buttons);
    const auto second = decodedList(written, readButton);
    const auto* again = std::get_if<0>(&second);
    check(again && std::ranges::equal(buttons, *again, identical));
    check(encodedList(*again) == written);
    return 0;
}
