#include "settings/TypedUrl.h"

#include <QRegularExpression>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

/// "debian.org", "localhost:8080", "[::1]/path": names need a dot, lest a word or a scheme be one.
bool beginsWithHost(const QString& text) {
    static const QRegularExpression host(
        uR"(^(localhost|([\w-]+\.)+\p{L}[\w-]+|\d+(\.\d+){3}|\[[\da-f:.]+\])(:\d+)?([/?#]|$))"_s,
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::UseUnicodePropertiesOption);
    return host.match(text).hasMatch();
}

/// Schemes whose URLs mean nothing without a host.
bool needsHost(const QString& scheme) {
    return scheme == u"http"_s || scheme == u"https"_s || scheme == u"ftp"_s;
}

} // namespace

std::optional<QString> typedUrl(const QString& text) {
    const QString typed = text.trimmed();
    const QString candidate = beginsWithHost(typed) ? u"https://"_s + typed : typed;
    const QUrl url(candidate, QUrl::StrictMode);
    if (!url.isValid() || url.isRelative() || (needsHost(url.scheme()) && url.host().isEmpty()))
        return std::nullopt;
    return candidate;
}

} // namespace velmora
