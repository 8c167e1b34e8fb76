#include "app/TermsOfServiceView.h"

#include "foundation/ActionMessages.h"
#include "foundation/LocalizedString.h"
#include "foundation/UserDefaults.h"
#include "settings/StorageNotice.h"
#include "viewkit/Theme.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QShortcut>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

using Theme::defaultPadding;

constexpr int childSpacing = 20;
constexpr int titleFontSize = 22;
constexpr int buttonLabelWidth = 80;

/// The body of the terms in a vertically scrolling area with a rounded, bordered background.
class TermsText : public QScrollArea {
public:
    TermsText() {
        setObjectName(u"termsText"_s);
        setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
        setWidgetResizable(true);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);

        //: Terms of Service Content
        auto* text = new QLabel(localizedString("tos.content"));
        text->setTextFormat(Qt::PlainText);
        text->setWordWrap(true);
        text->setAlignment(Qt::AlignLeading | Qt::AlignTop);
        text->setMargin(defaultPadding);
        setWidget(text);
        // setWidget() turned it on; the rounded ground shows through.
        text->setAutoFillBackground(false);
        setAccessibleName(localizedString("tos.title"));
    }
};

/// A button whose label is at least `buttonLabelWidth` points wide.
QPushButton* answerButton(const QString& label) {
    auto* button = new QPushButton(label);
    button->setMinimumWidth(buttonLabelWidth + 2 * defaultPadding);
    return button;
}

} // namespace

const QString TermsOfServiceView::agreementKey = u"hasAgreedToToS_v1"_s;

TermsOfServiceView::TermsOfServiceView(UserDefaults& defaults, std::function<void()> onAgree) {
    //: Terms of Service Title
    auto* title = new QLabel(localizedString("tos.title"));
    title->setTextFormat(Qt::PlainText);
    title->setAlignment(Qt::AlignCenter);
    QFont titleFont = title->font();
    titleFont.setPixelSize(titleFontSize);
    title->setFont(titleFont);

    //: Quit Button
    QPushButton* quit = answerButton(localizedString("tos.quit"));
    quit->setShortcut(QKeySequence(u"Ctrl+Q"_s));
    connect(
        quit, &QPushButton::clicked, this, [] { ActionMessages::shared().send(u"terminate:"_s); });

    //: Agree Button
    QPushButton* agree = answerButton(localizedString("tos.agree"));
    agree->setDefault(true);
    // Outside a QDialog a default button looks the part but does not hear Return. Nobody who has
    // gone to the other answer means this one.
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter})
        connect(new QShortcut(QKeySequence(key), this), &QShortcut::activated, this, [agree, quit] {
            (quit->hasFocus() ? quit : agree)->click();
        });
    connect(agree, &QPushButton::clicked, this, [&defaults, onAgree = std::move(onAgree)] {
        defaults.setBoolean(agreementKey, true);
        onAgree();
    });

    auto* answers = new QHBoxLayout;
    answers->setSpacing(childSpacing);
    answers->addStretch();
    answers->addWidget(quit);
    answers->addWidget(agree);
    answers->addStretch();
    answers->setContentsMargins(0, 0, 0, defaultPadding);

    auto* stack = new QVBoxLayout(this);
    stack->setContentsMargins(defaultPadding, 2 * defaultPadding, defaultPadding, defaultPadding);
    stack->setSpacing(childSpacing);
    stack->addWidget(title);
    stack->addWidget(new TermsText, 1);
    // Before the question, for it changes what the answer means.
    defaults.check();
    stack->addWidget(new StorageNotice(defaults, localizedString("tos.not_stored_format")));
    stack->addLayout(answers);
    setMinimumSize(400, 300);
    setFocusProxy(agree);
}

} // namespace velmora
