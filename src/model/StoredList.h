#pragma once

#include "foundation/UserDefaults.h"
#include "model/EditHistory.h"
#include "model/StoredForm.h"

#include <functional>
#include <utility>

namespace velmora {

/// Keeps the bytes under `key`, which are about to be replaced, under a key of their
/// own, and tells the log why. That key is "<key>.unreadable" for an `error`, else
/// "<key>.replaced"; the next ones are numbered. Once for the same bytes.
void keepAside(
    UserDefaults& defaults, const QString& key, const QByteArray& bytes,
    const DecodingError* error);

/// The name of an edit in the history: what was done to the record with the title `title`.
enum class EditKind { add, remove, change, move };
QString editName(EditKind kind, const QString& title);

/// A list of records and its place in the user defaults. Each change is announced before it happens
/// and saved after it; an index out of range changes and saves nothing. What is stored there and
/// does not decode, or was written by another hand, is kept before anything replaces it. Main
/// thread only.
template<typename Record>
class StoredList {
public:
    using Read = Record (*)(const JsonReader& record);
    using Hook = std::function<void()>;

    /// Holds what is stored under `key`: nothing, where that does not decode. `willChange` is
    /// called before each later change, `didChange` when it was saved; both synchronously.
    /// `defaults` and `history` outlive the list, which itself outlives what it records there.
    StoredList(
        UserDefaults& defaults, EditHistory& history, QString key, Read read, Hook willChange,
        Hook didChange = [] {})
        : defaults_(defaults),
          history_(history),
          key_(std::move(key)),
          read_(read),
          willChange_(std::move(willChange)),
          didChange_(std::move(didChange)),
          known_(defaults_.data(key_).value_or(QByteArray())),
          records_(decoded(known_)) {}

    const QList<Record>& records() const { return records_; }

    /// Takes other records without an entry in the history.
    void assign(const QList<Record>& records) {
        apply([&](QList<Record>& list) { list = records; });
    }

    /// Takes other records, by the user's wish: the edit `name`.
    void replaceAll(const QList<Record>& records, const QString& name) {
        const QUuid first = records.isEmpty() ? QUuid() : records.first().id();
        edit(
            name, first, [records](QList<Record>& list) { list = records; },
            [before = records_](QList<Record>& list) { list = before; });
    }

    void append(const Record& record) {
        edit(
            editName(EditKind::add, titleOf(record)), record.id(),
            [record](QList<Record>& list) { list.append(record); },
            [](QList<Record>& list) { list.removeLast(); });
    }

    void remove(qsizetype index) {
        if (!holds(index))
            return;
        const Record record = records_.at(index);
        edit(
            editName(EditKind::remove, titleOf(record)), record.id(),
            [index](QList<Record>& list) { list.removeAt(index); },
            [index, record](QList<Record>& list) { list.insert(index, record); });
    }

    void replace(qsizetype index, const Record& record) {
        if (!holds(index))
            return;
        const Record before = records_.at(index);
        edit(
            editName(EditKind::change, titleOf(before)), record.id(),
            [index, record](QList<Record>& list) { list.replace(index, record); },
            [index, before](QList<Record>& list) { list.replace(index, before); });
    }

    /// Moves a record to immediately before the one at `destination`, an offset into the list as it
    /// stands before the move, up to its length. Announced as two changes, saved once.
    void move(qsizetype source, qsizetype destination) {
        if (!holds(source) || destination < 0 || destination > records_.size())
            return;
        const qsizetype target = destination > source ? destination - 1 : destination;
        const Record record = records_.at(source);
        const auto moved = [this](qsizetype from, qsizetype to) {
            return [this, from, to](QList<Record>& list) {
                const Record taken = list.takeAt(from);
                willChange_();
                list.insert(to, taken);
            };
        };
        if (target == source)
            apply(moved(source, target));
        else
            edit(
                editName(EditKind::move, titleOf(record)), record.id(), moved(source, target),
                moved(target, source));
    }

    /// Writes the whole list.
    void save() {
        defaults_.refresh();
        if (const auto stored = defaults_.data(key_); stored && *stored != known_) {
            // Written by another hand.
            if (!decoded(*stored).isEmpty())
                keepAside(defaults_, key_, *stored, nullptr);
        }
        known_ = encodedList(records_);
        defaults_.setData(key_, known_);
    }

private:
    using Change = std::function<void(QList<Record>& list)>;

    bool holds(qsizetype index) const { return index >= 0 && index < records_.size(); }

    void apply(const Change& change) {
        willChange_();
        change(records_);
        save();
        didChange_();
    }

    /// Carries out `change`, which `inverse` takes back.
    void edit(const QString& name, QUuid record, const Change& change, const Change& inverse) {
        apply(change);
        history_.record(
            {name, record, [this, inverse] { apply(inverse); }, [this, change] { apply(change); }});
    }

    QList<Record> decoded(const QByteArray& bytes) {
        if (bytes.isEmpty())
            return {};
        auto list = decodedList(bytes, read_);
        if (const auto* error = std::get_if<DecodingError>(&list)) {
            keepAside(defaults_, key_, bytes, error);
            return {};
        }
        return std::get<0>(std::move(list));
    }

    UserDefaults& defaults_;
    EditHistory& history_;
    const QString key_;
    const Read read_;
    const Hook willChange_;
    const Hook didChange_;
    QByteArray known_; ///< what was loaded or saved last
    QList<Record> records_;
};

} // namespace velmora
