#include "settings/SearchText.h"

namespace velmora {

QString foldedForSearch(const QString& text) {
    constexpr QChar dotAbove(0x0307); // what lower case of İ leaves behind the i
    // QString::toCaseFolded() maps one letter to one; going by way of upper case takes ß to ss and
    // ı to i, and lower case before it takes along letters that are upper case already (ẞ).
    QString folded = text.normalized(QString::NormalizationForm_KC).toLower().toUpper().toLower();
    folded.replace(QString(u'i') + dotAbove, QString(u'i'));
    return folded.normalized(QString::NormalizationForm_KC);
}

} // namespace velmora
