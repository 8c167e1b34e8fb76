#pragma once

#include <QByteArrayView>
#include <QHash>
#include <QList>
#include <QRectF>
#include <QString>

namespace velmora {

/// One step of drawing a symbol, on a grid of 16 x 16 units with the origin at the top left.
struct SymbolLayer {
    enum class Kind { drawing, clearRectangle, clearEllipse, mirrorHorizontally };
    Kind kind = Kind::drawing;
    QString drawing; ///< name of the embedded drawing, without suffix; empty for other kinds
    QRectF box{0, 0, 16, 16};
    bool operator==(const SymbolLayer&) const = default;
};

/// The layers of each symbol, by symbol name.
using SymbolTable = QHash<QString, QList<SymbolLayer>>;

/// Reads the text of resources/symbols/symbols.tsv (its head describes the format).
SymbolTable parseSymbolTable(QByteArrayView text);

} // namespace velmora
