#pragma once

#include "foundation/UserDefaults.h"
#include "model/StoredForm.h"

#include <utility>

namespace velmora {

/// Keeps the bytes under `key`, which do not decode because of `error`, under a key of their own
/// ("<key>.unreadable", the next ones numbered), and tells the log. Once for the same bytes.
void keepUnreadable(
    UserDefaults& defaults, const QString& key, const QByteArray& bytes,
    const DecodingError& error);

/// A list of records in the user defaults. Bytes that do not decode are kept before anything
/// replaces them.
template<typename Record>
class ListStorage {
public:
    using Read = Record (*)(const JsonReader& record);

    ListStorage(UserDefaults& defaults, QString key, Read read)
        : defaults_(defaults), key_(std::move(key)), read_(read) {}

    /// The stored list; nothing when there is none that decodes.
    std::optional<QList<Record>> load() {
        known_ = defaults_.data(key_).value_or(QByteArray());
        return decoded(known_);
    }

    void save(const QList<Record>& list) {
        defaults_.refresh();
        if (const auto stored = defaults_.data(key_); stored && *stored != known_)
            decoded(*stored); // written by another hand
        known_ = encodedList(list);
        defaults_.setData(key_, known_);
    }

private:
    std::optional<QList<Record>> decoded(const QByteArray& bytes) {
        if (bytes.isEmpty())
            return {};
        auto list = decodedList(bytes, read_);
        if (const auto* error = std::get_if<DecodingError>(&list)) {
            keepUnreadable(defaults_, key_, bytes, *error);
            return {};
        }
        return std::get<0>(std::move(list));
    }

    UserDefaults& defaults_;
    const QString key_;
    const Read read_;
    QByteArray known_; ///< what was loaded or saved last
};

} // namespace velmora
