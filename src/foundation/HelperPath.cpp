#include "foundation/HelperPath.h"

#include "foundation/Bundle.h"

#include <QFile>

namespace velmora {

void appendHelperPath() {
    const auto folder = Bundle::helperPath();
    if (!folder)
        return;
    QByteArray path = qgetenv("PATH");
    if (path.isEmpty())
        path = "/usr/local/bin:/usr/bin:/bin";
    const QByteArray helper = QFile::encodeName(*folder);
    if (!path.split(':').contains(helper))
        qputenv("PATH", path + ':' + helper);
}

} // namespace velmora
