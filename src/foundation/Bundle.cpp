#include "foundation/Bundle.h"

#include <QCoreApplication>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace velmora::Bundle {
namespace {

std::optional<QString> firstFolder(std::initializer_list<QString> candidates) {
    const QString base = QCoreApplication::applicationDirPath();
    for (const QString& candidate : candidates) {
        const QFileInfo folder(base + u'/' + candidate);
        if (folder.isDir())
            return folder.canonicalFilePath();
    }
    return std::nullopt;
}

} // namespace

std::optional<QString> resourcePath() {
    return firstFolder({u"resources"_s, u"../share/velmora"_s});
}

std::optional<QString> path(const QString& name, const QString& type, const QString& directory) {
    const auto base = resourcePath();
    if (!base)
        return std::nullopt;
    const QString candidate = *base + u'/' + directory + u'/' + name + u'.' + type;
    return QFileInfo(candidate).isFile() ? std::optional(candidate) : std::nullopt;
}

QString bundlePath() {
    return QCoreApplication::applicationDirPath();
}

std::optional<QVariantMap> infoDictionary() {
    return QVariantMap{
        {QString(shortVersionKey), QStringLiteral(VELMORA_VERSION)},
        {QString(versionKey), QStringLiteral(VELMORA_BUILD)}};
}

std::optional<QString> helperPath() {
    return firstFolder({u"libexec"_s, u"../lib/velmora"_s});
}

} // namespace velmora::Bundle
