#pragma once

#include <QLatin1StringView>
#include <QList>
#include <QString>

namespace velmora {

/// What plays the part of a well-known application here, best first: each text is a MIME type (it
/// contains a slash), standing for its default handler, or the id of a desktop entry without
/// ".desktop". Empty for an identifier that is not known; the case of letters does not count.
QList<QLatin1StringView> applicationRole(const QString& identifier);

} // namespace velmora
