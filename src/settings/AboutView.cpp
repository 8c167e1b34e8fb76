#include "settings/AboutView.h"

#include "foundation/Bundle.h"
#include "foundation/LocalizedString.h"
#include "settings/VersionLine.h"
#include "viewkit/FormParts.h"
#include "viewkit/Sheet.h"
#include "viewkit/Theme.h"

#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QSvgRenderer>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

constexpr int panelWidth = 300;
constexpr int iconSide = 64;
constexpr int margin = 24;

/// The program's icon, sharp at any scale.
class ProgramIcon : public QWidget {
public:
    ProgramIcon() {
        setFixedSize(iconSide, iconSide);
        if (const auto file = Bundle::path(u"i-menu"_s, u"svg"_s, u"icon"_s))
            drawing_.load(*file);
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        drawing_.render(&painter, rect());
    }

private:
    QSvgRenderer drawing_;
};

QLabel* smallText(const QString& text) {
    auto* label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setFont(Theme::systemFont(11));
    label->setForegroundRole(QPalette::PlaceholderText);
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignCenter);
    return label;
}

} // namespace

AboutView::AboutView(const std::optional<QVariantMap>& infoDictionary) {
    setWindowTitle(localizedString("about_title"));
    auto* close = new QPushButton(localizedString("button_close"));
    close->setDefault(true);
    connect(close, &QPushButton::clicked, this, [this] { Sheet::dismiss(*this); });

    auto* stack = new QVBoxLayout(this);
    stack->setContentsMargins(margin, margin, margin, margin);
    stack->setSpacing(Theme::defaultSpacing);
    stack->addWidget(new ProgramIcon, 0, Qt::AlignHCenter);
    stack->addWidget(headline(u"Velmora"_s), 0, Qt::AlignHCenter);
    stack->addWidget(
        smallText(versionText(infoDictionary).value_or(localizedString("unknown_version"))));
    stack->addWidget(smallText(localizedString("about_licence")));
    stack->addSpacing(Theme::defaultSpacing);
    stack->addWidget(close, 0, Qt::AlignHCenter);
    setFixedWidth(panelWidth);
    setFocusProxy(close);
}

} // namespace velmora
