#include "settings/VersionLine.h"

#include "foundation/Bundle.h"
#include "foundation/LocalizedString.h"
#include "foundation/Log.h"
#include "viewkit/Theme.h"

#include <QFontMetrics>
#include <QShowEvent>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

constexpr int captionFontSize = 10;
constexpr int bottomPadding = 8;

QString description(const std::optional<QVariantMap>& dictionary) {
    if (!dictionary)
        return u"nil"_s;
    QStringList entries;
    for (const auto& [key, value] : dictionary->asKeyValueRange())
        entries += u"%1: %2"_s.arg(key, value.toString());
    return u'[' + entries.join(u", "_s) + u']';
}

} // namespace

std::optional<QString> versionText(const std::optional<QVariantMap>& infoDictionary) {
    if (!infoDictionary)
        return std::nullopt;
    const QVariant shortVersion = infoDictionary->value(QString(Bundle::shortVersionKey));
    const QVariant build = infoDictionary->value(QString(Bundle::versionKey));
    if (shortVersion.typeId() != QMetaType::QString || build.typeId() != QMetaType::QString)
        return std::nullopt;
    return localizedString("version_format").arg(shortVersion.toString(), build.toString());
}

int versionLineRoom() {
    return QFontMetrics(Theme::systemFont(captionFontSize)).height() + bottomPadding;
}

VersionLine::VersionLine(std::optional<QVariantMap> infoDictionary)
    : infoDictionary_(std::move(infoDictionary)) {
    const auto known = versionText(infoDictionary_);
    isKnown_ = known.has_value();
    setTextFormat(Qt::PlainText);
    setText(known ? *known : localizedString("unknown_version"));
    setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    setFixedHeight(versionLineRoom());
    setFont(Theme::systemFont(captionFontSize));
    setForegroundRole(isKnown_ ? QPalette::PlaceholderText : QPalette::BrightText);
}

void VersionLine::showEvent(QShowEvent* event) {
    QLabel::showEvent(event);
    if (isKnown_ || event->spontaneous())
        return;
    Log::writeDiagnostic(u"⚠️ InfoDictionary is nil or missing keys."_s);
    Log::writeDiagnostic(u"Bundle Path: "_s + Bundle::bundlePath());
    Log::writeDiagnostic(u"InfoDictionary: "_s + description(infoDictionary_));
}

} // namespace velmora
