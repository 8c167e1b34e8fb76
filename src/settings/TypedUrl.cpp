#include "settings/TypedUrl.h"

#include <QRegularExpression>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

/// `text` with a scheme in front if it begins with a host: "debian.org", "localhost:8080",
/// "[::1]/path". Names need a dot, lest a word or a scheme be one. What has no name of its own or
/// serves at a port is somebody's own server, which rarely has a certificate.
QString withScheme(const QString& text) {
    static const QRegularExpression host(
        uR"(^((localhost|\d+(\.\d+){3}|\[[\da-f:.]+\])|([\w-]+\.)+\p{L}[\w-]+)(:\d+)?([/?#]|$))"_s,
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::UseUnicodePropertiesOption);
    const QRegularExpressionMatch match = host.match(text);
    if (!match.hasMatch())
        return text;
    const QString port = match.captured(5);
    const bool isPlain = port.isEmpty() ? match.hasCaptured(2) : port != u":443"_s;
    return (isPlain ? u"http://"_s : u"https://"_s) + text;
}

/// Schemes whose URLs mean nothing without a host.
bool needsHost(const QString& scheme) {
    return scheme == u"http"_s || scheme == u"https"_s || scheme == u"ftp"_s;
}

} // namespace

std::optional<QString> typedUrl(const QString& text) {
    const QString typed = text.trimmed();
    const QString candidate = withScheme(typed);
    const QUrl url(candidate, QUrl::StrictMode);
    if (!url.isValid() || url.isRelative() || (needsHost(url.scheme()) && url.host().isEmpty()))
        return std::nullopt;
    return candidate;
}

} // namespace velmora
