#pragma once

#include "foundation/UserDefaults.h"
#include "model/StoredForm.h"

#include <functional>
#include <utility>

namespace velmora {

/// Keeps the bytes under `key`, which do not decode because of `error`, under a key of their own
/// ("<key>.unreadable", the next ones numbered), and tells the log. Once for the same bytes.
void keepUnreadable(
    UserDefaults& defaults, const QString& key, const QByteArray& bytes,
    const DecodingError& error);

/// A list of records and its place in the user defaults. Each change is announced before it happens
/// and saved after it; an index out of range changes and saves nothing. Bytes that do not decode
/// are kept before anything replaces them. Main thread only.
template<typename Record>
class StoredList {
public:
    using Read = Record (*)(const JsonReader& record);

    /// Holds what is stored under `key`: nothing, where that does not decode. `willChange` is
    /// called before each later change, synchronously. `defaults` outlives the list.
    StoredList(UserDefaults& defaults, QString key, Read read, std::function<void()> willChange)
        : defaults_(defaults),
          key_(std::move(key)),
          read_(read),
          willChange_(std::move(willChange)),
          known_(defaults_.data(key_).value_or(QByteArray())),
          records_(decoded(known_)) {}

    const QList<Record>& records() const { return records_; }

    void assign(QList<Record> records) {
        willChange_();
        records_ = std::move(records);
        save();
    }

    void append(const Record& record) {
        willChange_();
        records_.append(record);
        save();
    }

    void remove(qsizetype index) {
        if (!holds(index))
            return;
        willChange_();
        records_.removeAt(index);
        save();
    }

    void replace(qsizetype index, const Record& record) {
        if (!holds(index))
            return;
        willChange_();
        records_.replace(index, record);
        save();
    }

    /// Moves a record to immediately before the one at `destination`, an offset into the list as it
    /// stands before the move, up to its length. Announced as two changes, saved once.
    void move(qsizetype source, qsizetype destination) {
        if (!holds(source) || destination < 0 || destination > records_.size())
            return;
        willChange_();
        const Record record = records_.takeAt(source);
        willChange_();
        records_.insert(destination > source ? destination - 1 : destination, record);
        save();
    }

    /// Writes the whole list.
    void save() {
        defaults_.refresh();
        if (const auto stored = defaults_.data(key_); stored && *stored != known_)
            decoded(*stored); // written by another hand
        known_ = encodedList(records_);
        defaults_.setData(key_, known_);
    }

private:
    bool holds(qsizetype index) const { return index >= 0 && index < records_.size(); }

    QList<Record> decoded(const QByteArray& bytes) {
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
    const std::function<void()> willChange_;
    QByteArray known_; ///< what was loaded or saved last
    QList<Record> records_;
};

} // namespace velmora
