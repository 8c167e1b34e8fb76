// Any bytes under the list's key either end in an error or read as buttons which, written and read
// again, are the same in every field.

#include "model/StoredForm.h"

#include <cstdlib>

using namespace velmora;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const auto json = QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const auto first = decodedList(json, readButton);
    if (const auto* error = std::get_if<DecodingError>(&first)) {
        if (error->description.isEmpty())
            std::abort();
        return 0;
    }
    const QByteArray written = encodedList(std::get<0>(first));
    const auto second = decodedList(written, readButton);
    const auto* again = std::get_if<0>(&second);
    if (!again || *again != std::get<0>(first) || encodedList(*again) != written)
        std::abort();
    return 0;
}
