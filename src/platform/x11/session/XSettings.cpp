#include "platform/x11/session/XSettings.h"

#include <QtEndian>

namespace velmora {
namespace {

/// Takes numbers and bytes from the front; once there are too few, it stays without any.
class Reader {
public:
    explicit Reader(QByteArrayView data) : rest_(data) {}

    bool isIntact() const { return isIntact_; }

    QByteArrayView bytes(qsizetype count) {
        isIntact_ = isIntact_ && count >= 0 && count <= rest_.size();
        const QByteArrayView taken = isIntact_ ? rest_.first(count) : QByteArrayView();
        rest_ = rest_.sliced(taken.size());
        return taken;
    }

    /// Bytes that are filled up to a multiple of four.
    QByteArrayView paddedBytes(qsizetype count) {
        const QByteArrayView taken = bytes(count);
        bytes(-count & 3);
        return taken;
    }

    template<typename Number>
    Number number() {
        const QByteArrayView taken = bytes(sizeof(Number));
        if (!isIntact_)
            return 0;
        return isBigEndian ? qFromBigEndian<Number>(taken.data())
                           : qFromLittleEndian<Number>(taken.data());
    }

    bool isBigEndian = false;

private:
    QByteArrayView rest_;
    bool isIntact_ = true;
};

enum Type : quint8 { Integer = 0, Text = 1, Colour = 2 };

} // namespace

std::optional<QByteArrayView> xsettingsText(QByteArrayView settings, QByteArrayView name) {
    Reader reader(settings);
    reader.isBigEndian = reader.number<quint8>() == 1;
    reader.bytes(3 + 4); // unused, serial number of the whole
    const auto count = reader.number<quint32>();
    for (quint32 i = 0; i < count && reader.isIntact(); ++i) {
        const auto type = reader.number<quint8>();
        reader.bytes(1);
        const bool isWanted = reader.paddedBytes(reader.number<quint16>()) == name;
        reader.bytes(4); // serial number of the last change
        QByteArrayView value;
        if (type == Text)
            value = reader.paddedBytes(reader.number<quint32>());
        else if (type == Integer || type == Colour)
            reader.bytes(type == Integer ? 4 : 8);
        else
            return {};
        if (isWanted && type == Text && reader.isIntact())
            return value;
    }
    return {};
}

} // namespace velmora
