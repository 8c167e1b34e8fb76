<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name></name>
    <message id="Safari">
        <source></source>
        <translation>Safari</translation>
    </message>
    <message id="about_licence">
        <source></source>
        <translation>© 2026 The Velmora developers. Freie Software unter der MIT-Lizenz.</translation>
    </message>
    <message id="about_title">
        <source></source>
        <translation>Über Velmora</translation>
    </message>
    <message id="action_desc_execute">
        <source></source>
        <translation>%1 ausführen</translation>
    </message>
    <message id="action_desc_key">
        <source></source>
        <translation>%1 drücken</translation>
    </message>
    <message id="action_desc_launch">
        <source></source>
        <translation>%1 starten</translation>
    </message>
    <message id="action_desc_open">
        <source></source>
        <translation>%1 öffnen</translation>
    </message>
    <message id="action_execute_shell">
        <source></source>
        <translation>Shell-Befehl ausführen</translation>
    </message>
    <message id="action_launch_app">
        <source></source>
        <translation>Programm starten</translation>
    </message>
    <message id="action_open_url">
        <source></source>
        <translation>Adresse öffnen</translation>
    </message>
    <message id="action_press_key">
        <source></source>
        <translation>Tasten drücken</translation>
    </message>
    <message id="add">
        <source></source>
        <translation>Hinzufügen</translation>
    </message>
    <message id="alert_shell_message">
        <source></source>
        <translation>Velmora führt ihn mit Ihren Rechten und ohne weitere Rückfrage aus. Speichern Sie ihn nur, wenn Sie verstehen, was er tut, und ihm vertrauen.</translation>
    </message>
    <message id="alert_shell_title">
        <source></source>
        <translation>Diesen Shell-Befehl speichern?</translation>
    </message>
    <message id="bar_keeps_windows_below">
        <source></source>
        <translation>Fenster unterhalb der Leiste halten</translation>
    </message>
    <message id="bar_place">
        <source></source>
        <translation>Platz der Leiste</translation>
    </message>
    <message id="bar_place_below_panel">
        <source></source>
        <translation>Unter der Leiste des Desktops</translation>
    </message>
    <message id="bar_place_top_edge">
        <source></source>
        <translation>Am oberen Rand</translation>
    </message>
    <message id="button_cancel">
        <source></source>
        <translation>Abbrechen</translation>
    </message>
    <message id="button_close">
        <source></source>
        <translation>Schließen</translation>
    </message>
    <message id="button_save">
        <source></source>
        <translation>Speichern</translation>
    </message>
    <message id="button_select">
        <source></source>
        <translation>Auswählen …</translation>
    </message>
    <message id="delete">
        <source></source>
        <translation>Löschen</translation>
    </message>
    <message id="edit">
        <source></source>
        <translation>Bearbeiten</translation>
    </message>
    <message id="edit_add_format">
        <source></source>
        <translation>„%1“ hinzufügen</translation>
    </message>
    <message id="edit_change_format">
        <source></source>
        <translation>„%1“ bearbeiten</translation>
    </message>
    <message id="edit_import">
        <source></source>
        <translation>Importieren</translation>
    </message>
    <message id="edit_move_format">
        <source></source>
        <translation>„%1“ verschieben</translation>
    </message>
    <message id="edit_remove_format">
        <source></source>
        <translation>„%1“ löschen</translation>
    </message>
    <message id="exchange_export">
        <source></source>
        <translation>Exportieren …</translation>
    </message>
    <message id="exchange_export_failed">
        <source></source>
        <translation>Die Datei wurde nicht geschrieben.</translation>
    </message>
    <message id="exchange_import">
        <source></source>
        <translation>Importieren …</translation>
    </message>
    <message id="exchange_import_failed">
        <source></source>
        <translation>Es wurde nichts importiert.</translation>
    </message>
    <message id="exchange_title">
        <source></source>
        <translation>Knöpfe und Einstellungen</translation>
    </message>
    <message id="file_not_regular">
        <source></source>
        <translation>Keine gewöhnliche Datei</translation>
    </message>
    <message id="grant_held_by_other">
        <source></source>
        <translation>Ein anderes Programm verwendet das gerade.</translation>
    </message>
    <message id="grant_no_such_button">
        <source></source>
        <translation>Eine solche Maustaste gibt es hier nicht.</translation>
    </message>
    <message id="grant_no_such_key">
        <source></source>
        <translation>Diese Tastatur hat keine solche Taste.</translation>
    </message>
    <message id="grant_not_offered">
        <source></source>
        <translation>Diese Sitzung bietet das nicht.</translation>
    </message>
    <message id="group_action">
        <source></source>
        <translation>Aktion</translation>
    </message>
    <message id="group_basic">
        <source></source>
        <translation>Darstellung</translation>
    </message>
    <message id="hotkey_change">
        <source></source>
        <translation>Ändern …</translation>
    </message>
    <message id="hotkey_change_name">
        <source></source>
        <translation>Tastenkürzel ändern</translation>
    </message>
    <message id="hotkey_hint">
        <source></source>
        <translation>Blendet die Leiste in jedem Programm ein und aus.</translation>
    </message>
    <message id="hotkey_recording">
        <source></source>
        <translation>Drücken Sie die neue Kombination. Esc lässt alles, wie es ist.</translation>
    </message>
    <message id="hotkey_refused">
        <source></source>
        <translation>Ein Tastenkürzel braucht Strg, Alt oder Super zusammen mit einer weiteren Taste.</translation>
    </message>
    <message id="hotkey_reset">
        <source></source>
        <translation>Standard</translation>
    </message>
    <message id="hotkey_reset_name">
        <source></source>
        <translation>Standard-Tastenkürzel</translation>
    </message>
    <message id="hotkey_title">
        <source></source>
        <translation>Tastenkürzel</translation>
    </message>
    <message id="key_capture_leave">
        <source></source>
        <translation>Zweimal Tab oder Umschalt+Tab: unverändert verlassen</translation>
    </message>
    <message id="label_alignment">
        <source></source>
        <translation>Seite</translation>
    </message>
    <message id="label_app">
        <source></source>
        <translation>Programm</translation>
    </message>
    <message id="label_command">
        <source></source>
        <translation>Befehl</translation>
    </message>
    <message id="label_icon">
        <source></source>
        <translation>Symbol</translation>
    </message>
    <message id="label_key_combo">
        <source></source>
        <translation>Tasten</translation>
    </message>
    <message id="label_title">
        <source></source>
        <translation>Titel</translation>
    </message>
    <message id="label_url">
        <source></source>
        <translation>Adresse</translation>
    </message>
    <message id="list_empty">
        <source></source>
        <translation>Noch nichts vorhanden. „Hinzufügen“ legt den ersten Eintrag an.</translation>
    </message>
    <message id="login_failed_format">
        <source></source>
        <translation>Das konnte nicht gespeichert werden: %1</translation>
    </message>
    <message id="login_start">
        <source></source>
        <translation>Bei der Anmeldung starten</translation>
    </message>
    <message id="login_switched_off">
        <source></source>
        <translation>In den Einstellungen des Desktops ist es ausgeschaltet.</translation>
    </message>
    <message id="login_title">
        <source></source>
        <translation>Start</translation>
    </message>
    <message id="menu_help">
        <source></source>
        <extracomment>Menu tooltip</extracomment>
        <translation>Velmora-Menü</translation>
    </message>
    <message id="menu_quit">
        <source></source>
        <translation>Velmora beenden</translation>
    </message>
    <message id="menu_redo_format">
        <source></source>
        <translation>Wiederholen: %1</translation>
    </message>
    <message id="menu_settings">
        <source></source>
        <translation>Einstellungen …</translation>
    </message>
    <message id="menu_toggle">
        <source></source>
        <translation>Leiste ein- oder ausblenden</translation>
    </message>
    <message id="menu_undo_format">
        <source></source>
        <translation>Rückgängig: %1</translation>
    </message>
    <message id="mouse_action_label">
        <source></source>
        <translation>Aktion</translation>
    </message>
    <message id="mouse_add_title">
        <source></source>
        <translation>Neue Maustaste</translation>
    </message>
    <message id="mouse_btn_4">
        <source></source>
        <translation>Taste 4</translation>
    </message>
    <message id="mouse_btn_5">
        <source></source>
        <translation>Taste 5</translation>
    </message>
    <message id="mouse_btn_6">
        <source></source>
        <translation>Taste 6</translation>
    </message>
    <message id="mouse_btn_7">
        <source></source>
        <translation>Taste 7</translation>
    </message>
    <message id="mouse_btn_8">
        <source></source>
        <translation>Taste 8</translation>
    </message>
    <message id="mouse_btn_9">
        <source></source>
        <translation>Taste 9</translation>
    </message>
    <message id="mouse_btn_label">
        <source></source>
        <translation>Maustaste</translation>
    </message>
    <message id="mouse_btn_middle">
        <source></source>
        <translation>Mittlere Taste</translation>
    </message>
    <message id="mouse_button">
        <source></source>
        <translation>Taste</translation>
    </message>
    <message id="mouse_click_btn4">
        <source></source>
        <translation>Taste 4</translation>
    </message>
    <message id="mouse_click_btn5">
        <source></source>
        <translation>Taste 5</translation>
    </message>
    <message id="mouse_click_btn_format">
        <source></source>
        <translation>Taste %1</translation>
    </message>
    <message id="mouse_click_left">
        <source></source>
        <translation>Linke Taste</translation>
    </message>
    <message id="mouse_click_middle">
        <source></source>
        <translation>Mittlere Taste</translation>
    </message>
    <message id="mouse_click_right">
        <source></source>
        <translation>Rechte Taste</translation>
    </message>
    <message id="mouse_edit_title">
        <source></source>
        <translation>Maustaste bearbeiten</translation>
    </message>
    <message id="mouse_settings_title">
        <source></source>
        <translation>Aktionen für Maustasten</translation>
    </message>
    <message id="picker_app_clear">
        <source></source>
        <translation>Suche löschen</translation>
    </message>
    <message id="picker_app_loading">
        <source></source>
        <translation>Programme werden gesucht …</translation>
    </message>
    <message id="picker_app_no_match">
        <source></source>
        <translation>Kein passendes Programm.</translation>
    </message>
    <message id="picker_app_none">
        <source></source>
        <translation>Keine Programme gefunden.</translation>
    </message>
    <message id="picker_app_search">
        <source></source>
        <translation>Programme durchsuchen</translation>
    </message>
    <message id="picker_app_show_all">
        <source></source>
        <translation>Alle %1 Programme anzeigen</translation>
    </message>
    <message id="picker_app_title">
        <source></source>
        <translation>Programm auswählen</translation>
    </message>
    <message id="picker_icon_title">
        <source></source>
        <translation>Symbol auswählen</translation>
    </message>
    <message id="placeholder_app_name">
        <source></source>
        <translation>Name des Programms</translation>
    </message>
    <message id="placeholder_sf_symbol">
        <source></source>
        <translation>Name eines Symbols, z. B. star</translation>
    </message>
    <message id="placeholder_url">
        <source></source>
        <translation>https://example.com</translation>
    </message>
    <message id="restart">
        <source></source>
        <translation>Neu starten</translation>
    </message>
    <message id="settings_not_stored_format">
        <source></source>
        <translation>Änderungen werden nicht gespeichert, gelten aber bis zum Ende von Velmora: %1</translation>
    </message>
    <message id="settings_tab_general">
        <source></source>
        <translation>Allgemein</translation>
    </message>
    <message id="settings_tab_mouse">
        <source></source>
        <translation>Maustasten</translation>
    </message>
    <message id="settings_tab_velmora">
        <source></source>
        <translation>Knöpfe</translation>
    </message>
    <message id="shortcut_add_title">
        <source></source>
        <translation>Neuer Knopf</translation>
    </message>
    <message id="shortcut_alignment_left">
        <source></source>
        <translation>Links</translation>
    </message>
    <message id="shortcut_alignment_right">
        <source></source>
        <translation>Rechts</translation>
    </message>
    <message id="shortcut_delete">
        <source></source>
        <translation>Löschen</translation>
    </message>
    <message id="shortcut_edit">
        <source></source>
        <translation>Bearbeiten …</translation>
    </message>
    <message id="shortcut_edit_title">
        <source></source>
        <translation>Knopf bearbeiten</translation>
    </message>
    <message id="shortcuts_title">
        <source></source>
        <translation>Knöpfe in der Leiste</translation>
    </message>
    <message id="tos.agree">
        <source></source>
        <extracomment>Agree Button</extracomment>
        <translation>Zustimmen</translation>
    </message>
    <message id="tos.content">
        <source></source>
        <extracomment>Terms of Service Content</extracomment>
        <translation>Bitte lesen Sie die folgenden Hinweise, bevor Sie Velmora benutzen.

Was Velmora beobachtet
Velmora empfängt von Ihrem Desktop nur zwei Arten von Eingaben: die Tastenkombination Option+M (Alt+M) und die zusätzlichen Maustasten, die Sie belegt haben. Während Sie in den Einstellungen eine Tastenkombination aufzeichnen, empfängt es auch die Tasten, die Sie dort drücken. Was Sie tippen oder anklicken, wird nicht aufgezeichnet.

Was auf diesem Computer bleibt
Ihre Knöpfe, Ihre Maustastenbelegung und diese Zustimmung werden in Ihrem eigenen Konfigurationsordner gespeichert. Velmora sammelt nichts und sendet nichts: Es baut selbst keine Netzwerkverbindung auf. Webseiten, die Sie über Ihre Knöpfe aufrufen, öffnet Ihr Browser; dafür gelten dessen eigene Bedingungen.

Was Velmora für Sie tut
Ein Klick auf einen Knopf oder das Drücken einer belegten Maustaste startet ein Programm, öffnet eine Adresse, führt einen Shell-Befehl aus oder sendet eine Tastenkombination, genau so, wie Sie es eingerichtet haben. Shell-Befehle werden mit Ihren Rechten und ohne weitere Rückfrage ausgeführt. Bitte geben Sie nur Befehle ein, die Sie verstehen und denen Sie vertrauen.

Keine Gewährleistung
Velmora ist freie Software unter der MIT-Lizenz. Es wird so bereitgestellt, wie es ist, ohne jede Gewährleistung; Sie benutzen es auf eigenes Risiko.

Wenn Sie zustimmen, startet Velmora sofort und fragt nicht wieder. Wenn nicht, beenden Sie es hier; dann wird nichts gespeichert.</translation>
    </message>
    <message id="tos.not_stored_format">
        <source></source>
        <translation>Ihre Antwort kann nicht gespeichert werden; beim nächsten Start werden Sie wieder gefragt: %1</translation>
    </message>
    <message id="tos.quit">
        <source></source>
        <extracomment>Quit Button</extracomment>
        <translation>Beenden</translation>
    </message>
    <message id="tos.title">
        <source></source>
        <extracomment>Terms of Service Title; Terms of Service</extracomment>
        <translation>Nutzungsbedingungen</translation>
    </message>
    <message id="trust_message">
        <source></source>
        <translation>Dies ist eine Wayland-Sitzung. Darin erhält nur das Programm im Vordergrund Tastendrücke und Mausklicks. Die Leiste und ihre Knöpfe funktionieren; für Option+M (Alt+M), belegte Maustasten und gesendete Tastenkombinationen ist eine X11-Sitzung nötig.

Meist lässt sie sich auf dem Anmeldebildschirm auswählen.</translation>
    </message>
    <message id="trust_message_extensions">
        <source></source>
        <translation>Dem X-Server fehlt: %1. Die Leiste und ihre Knöpfe funktionieren; für Option+M (Alt+M), belegte Maustasten und gesendete Tastenkombinationen ist das nötig.</translation>
    </message>
    <message id="trust_title">
        <source></source>
        <translation>Velmora kann in dieser Sitzung keine Tasten erkennen</translation>
    </message>
    <message id="unknown_version">
        <source></source>
        <translation>Version unbekannt</translation>
    </message>
    <message id="url_invalid">
        <source></source>
        <translation>Das ist keine Adresse. Schreibweise: https://example.com</translation>
    </message>
    <message id="version_format">
        <source></source>
        <translation>Version %1 (%2)</translation>
    </message>
    <message id="クリア">
        <source></source>
        <translation>Leeren</translation>
    </message>
    <message id="例: ⌘C, ⌥⇧N, ⌃⌘Space">
        <source></source>
        <translation>Zum Beispiel ⌘C, ⌥⇧N, ⌃⌘Space</translation>
    </message>
</context>
</TS>
