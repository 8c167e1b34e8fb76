#include "settings/StorageNotice.h"

#include "foundation/UserDefaults.h"
#include "viewkit/Theme.h"

namespace velmora {

StorageNotice::StorageNotice(const UserDefaults& defaults, const QString& text) {
    setObjectName(QStringLiteral("storageNotice"));
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    setAlignment(Qt::AlignCenter);
    setMargin(Theme::defaultPadding / 2);
    const auto update = [this, &defaults, text] {
        setText(text.arg(defaults.failure()));
        setVisible(!defaults.failure().isEmpty());
    };
    connect(&defaults, &UserDefaults::failureChanged, this, update);
    update();
}

} // namespace velmora
