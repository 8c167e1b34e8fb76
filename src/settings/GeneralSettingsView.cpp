#include "settings/GeneralSettingsView.h"

#include "foundation/LocalizedString.h"
#include "foundation/RegularFile.h"
#include "model/Preferences.h"
#include "settings/ExchangeButtons.h"
#include "settings/FormGroup.h"
#include "settings/HotKeyField.h"
#include "viewkit/FormParts.h"
#include "viewkit/PopUpButton.h"
#include "viewkit/Theme.h"

#include <QCheckBox>
#include <QLabel>
#include <QScrollArea>
#include <QVBoxLayout>

namespace velmora {
namespace {

constexpr int groupSpacing = 16;

/// Says how it stands with the start at login; not there where the check box says it all.
class LoginNote : public QLabel {
public:
    LoginNote() {
        setTextFormat(Qt::PlainText);
        setWordWrap(true);
        hide();
    }

    void say(const QString& text, QPalette::ColorRole color = QPalette::PlaceholderText) {
        setText(text);
        setForegroundRole(color);
        setVisible(!text.isEmpty());
    }
};

} // namespace

GeneralSettingsView::GeneralSettingsView(
    Preferences& preferences, HotKeyManager& hotKeyManager, InputGrants& inputGrants,
    const LoginItem& loginItem, const Exchange& exchange) {
    auto* hotKey = new FormGroup(localizedString("hotkey_title"));
    hotKey->addRow(new HotKeyField(preferences, hotKeyManager, inputGrants));

    auto* files = new FormGroup(localizedString("exchange_title"));
    files->addRow(new ExchangeButtons(exchange));

    constexpr int padding = Theme::defaultPadding;
    auto* form = new QWidget;
    auto* groups = new QVBoxLayout(form);
    groups->setContentsMargins(padding, padding, padding, padding);
    groups->setSpacing(groupSpacing);
    groups->addWidget(hotKey);
    groups->addWidget(makeBarGroup(preferences));
    groups->addWidget(makeLoginGroup(loginItem));
    groups->addWidget(files);
    groups->addStretch();
    auto* stack = new QVBoxLayout(this);
    stack->setContentsMargins(0, 0, 0, 0);
    stack->addWidget(scrollArea(form, localizedString("settings_tab_general")));
}

FormGroup* GeneralSettingsView::makeBarGroup(Preferences& preferences) {
    auto* place = new PopUpButton(localizedString("bar_place"));
    place->addItem(localizedString("bar_place_below_panel"));
    place->addItem(localizedString("bar_place_top_edge"));
    auto* keepsBelow = new QCheckBox(localizedString("bar_keeps_windows_below"));
    connect(place, &PopUpButton::currentIndexChanged, this, [&preferences](int index) {
        preferences.setBarAtTopEdge(index == 1);
    });
    connect(keepsBelow, &QCheckBox::toggled, this, [&preferences](bool isChecked) {
        preferences.setKeepsWindowsBelow(isChecked);
    });
    const auto update = [&preferences, place, keepsBelow] {
        place->setCurrentIndex(preferences.barAtTopEdge() ? 1 : 0);
        keepsBelow->setChecked(preferences.keepsWindowsBelow());
    };
    connect(&preferences, &Preferences::changed, place, update);
    update();

    auto* group = new FormGroup(place->accessibleName());
    group->addRow(place, Qt::AlignLeading);
    group->addRow(keepsBelow, Qt::AlignLeading);
    return group;
}

FormGroup* GeneralSettingsView::makeLoginGroup(const LoginItem& loginItem) {
    auto* starts = new QCheckBox(localizedString("login_start"));
    auto* note = new LoginNote;
    const auto update = [loginItem, starts, note] {
        const LoginItem::State state = loginItem.state();
        starts->setChecked(state == LoginItem::State::on);
        note->say(
            state == LoginItem::State::switchedOff ? localizedString("login_switched_off")
                                                   : QString());
        starts->setAccessibleDescription(note->text());
    };
    connect(starts, &QCheckBox::clicked, this, [loginItem, starts, note, update](bool isChecked) {
        try {
            loginItem.setEnabled(isChecked);
            update();
        } catch (const FileError& error) {
            update();
            note->say(
                localizedString("login_failed_format").arg(error.reason), QPalette::BrightText);
            starts->setAccessibleDescription(note->text());
        }
    });
    update();

    auto* group = new FormGroup(localizedString("login_title"));
    group->addRow(starts, Qt::AlignLeading);
    group->addRow(note);
    return group;
}

} // namespace velmora
