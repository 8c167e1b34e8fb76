<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name></name>
    <message id="Safari">
        <source></source>
        <translation>Safari</translation>
    </message>
    <message id="about_licence">
        <source></source>
        <translation>© 2026 The Velmora developers. Free software under the MIT licence.</translation>
    </message>
    <message id="about_title">
        <source></source>
        <translation>About Velmora</translation>
    </message>
    <message id="action_desc_execute">
        <source></source>
        <translation>Run %1</translation>
    </message>
    <message id="action_desc_key">
        <source></source>
        <translation>Press %1</translation>
    </message>
    <message id="action_desc_launch">
        <source></source>
        <translation>Launch %1</translation>
    </message>
    <message id="action_desc_open">
        <source></source>
        <translation>Open %1</translation>
    </message>
    <message id="action_execute_shell">
        <source></source>
        <translation>Run Shell Command</translation>
    </message>
    <message id="action_launch_app">
        <source></source>
        <translation>Launch Application</translation>
    </message>
    <message id="action_open_url">
        <source></source>
        <translation>Open Address</translation>
    </message>
    <message id="action_press_key">
        <source></source>
        <translation>Press Keys</translation>
    </message>
    <message id="add">
        <source></source>
        <translation>Add</translation>
    </message>
    <message id="alert_shell_message">
        <source></source>
        <translation>Velmora will run it with your rights and without asking again. Save it only if you understand what it does and trust it.</translation>
    </message>
    <message id="alert_shell_title">
        <source></source>
        <translation>Save this shell command?</translation>
    </message>
    <message id="bar_keeps_windows_below">
        <source></source>
        <translation>Keep windows below the bar</translation>
    </message>
    <message id="bar_place">
        <source></source>
        <translation>Place of the bar</translation>
    </message>
    <message id="bar_place_below_panel">
        <source></source>
        <translation>Below the desktop’s panel</translation>
    </message>
    <message id="bar_place_top_edge">
        <source></source>
        <translation>At the top edge</translation>
    </message>
    <message id="button_cancel">
        <source></source>
        <translation>Cancel</translation>
    </message>
    <message id="button_close">
        <source></source>
        <translation>Close</translation>
    </message>
    <message id="button_save">
        <source></source>
        <translation>Save</translation>
    </message>
    <message id="button_select">
        <source></source>
        <translation>Choose…</translation>
    </message>
    <message id="delete">
        <source></source>
        <translation>Delete</translation>
    </message>
    <message id="edit">
        <source></source>
        <translation>Edit</translation>
    </message>
    <message id="edit_add_format">
        <source></source>
        <translation>Add “%1”</translation>
    </message>
    <message id="edit_change_format">
        <source></source>
        <translation>Edit “%1”</translation>
    </message>
    <message id="edit_import">
        <source></source>
        <translation>Import</translation>
    </message>
    <message id="edit_move_format">
        <source></source>
        <translation>Move “%1”</translation>
    </message>
    <message id="edit_remove_format">
        <source></source>
        <translation>Delete “%1”</translation>
    </message>
    <message id="exchange_export">
        <source></source>
        <translation>Export…</translation>
    </message>
    <message id="exchange_export_failed">
        <source></source>
        <translation>The file was not written.</translation>
    </message>
    <message id="exchange_import">
        <source></source>
        <translation>Import…</translation>
    </message>
    <message id="exchange_import_failed">
        <source></source>
        <translation>Nothing was imported.</translation>
    </message>
    <message id="exchange_title">
        <source></source>
        <translation>Buttons and Preferences</translation>
    </message>
    <message id="file_not_regular">
        <source></source>
        <translation>Not a regular file</translation>
    </message>
    <message id="grant_held_by_other">
        <source></source>
        <translation>Another program is using it just now.</translation>
    </message>
    <message id="grant_no_such_button">
        <source></source>
        <translation>No mouse has such a button here.</translation>
    </message>
    <message id="grant_no_such_key">
        <source></source>
        <translation>This keyboard has no such key.</translation>
    </message>
    <message id="grant_not_offered">
        <source></source>
        <translation>This desktop session does not offer it.</translation>
    </message>
    <message id="group_action">
        <source></source>
        <translation>Action</translation>
    </message>
    <message id="group_basic">
        <source></source>
        <translation>Appearance</translation>
    </message>
    <message id="hotkey_change">
        <source></source>
        <translation>Change…</translation>
    </message>
    <message id="hotkey_change_name">
        <source></source>
        <translation>Change the hot key</translation>
    </message>
    <message id="hotkey_hint">
        <source></source>
        <translation>Shows and hides the bar in every application.</translation>
    </message>
    <message id="hotkey_recording">
        <source></source>
        <translation>Press the new combination. Esc leaves everything as it is.</translation>
    </message>
    <message id="hotkey_refused">
        <source></source>
        <translation>A hot key needs Ctrl, Alt or Super together with another key.</translation>
    </message>
    <message id="hotkey_reset">
        <source></source>
        <translation>Default</translation>
    </message>
    <message id="hotkey_reset_name">
        <source></source>
        <translation>Default hot key</translation>
    </message>
    <message id="hotkey_title">
        <source></source>
        <translation>Hot key</translation>
    </message>
    <message id="key_capture_leave">
        <source></source>
        <translation>Tab or Shift+Tab twice: leave unchanged</translation>
    </message>
    <message id="label_alignment">
        <source></source>
        <translation>Side</translation>
    </message>
    <message id="label_app">
        <source></source>
        <translation>Application</translation>
    </message>
    <message id="label_command">
        <source></source>
        <translation>Command</translation>
    </message>
    <message id="label_icon">
        <source></source>
        <translation>Symbol</translation>
    </message>
    <message id="label_key_combo">
        <source></source>
        <translation>Keys</translation>
    </message>
    <message id="label_title">
        <source></source>
        <translation>Title</translation>
    </message>
    <message id="label_url">
        <source></source>
        <translation>Address</translation>
    </message>
    <message id="list_empty">
        <source></source>
        <translation>Nothing here yet. Choose “Add” to make the first.</translation>
    </message>
    <message id="login_failed_format">
        <source></source>
        <translation>This could not be stored: %1</translation>
    </message>
    <message id="login_start">
        <source></source>
        <translation>Start at login</translation>
    </message>
    <message id="login_switched_off">
        <source></source>
        <translation>It is switched off in the desktop’s settings.</translation>
    </message>
    <message id="login_title">
        <source></source>
        <translation>Start</translation>
    </message>
    <message id="menu_help">
        <source></source>
        <extracomment>Menu tooltip</extracomment>
        <translation>Velmora menu</translation>
    </message>
    <message id="menu_quit">
        <source></source>
        <translation>Quit Velmora</translation>
    </message>
    <message id="menu_redo_format">
        <source></source>
        <translation>Redo %1</translation>
    </message>
    <message id="menu_settings">
        <source></source>
        <translation>Settings…</translation>
    </message>
    <message id="menu_toggle">
        <source></source>
        <translation>Hide or Show the Bar</translation>
    </message>
    <message id="menu_undo_format">
        <source></source>
        <translation>Undo %1</translation>
    </message>
    <message id="mouse_action_label">
        <source></source>
        <translation>Action</translation>
    </message>
    <message id="mouse_add_title">
        <source></source>
        <translation>New Mouse Button</translation>
    </message>
    <message id="mouse_btn_4">
        <source></source>
        <translation>Button 4</translation>
    </message>
    <message id="mouse_btn_5">
        <source></source>
        <translation>Button 5</translation>
    </message>
    <message id="mouse_btn_6">
        <source></source>
        <translation>Button 6</translation>
    </message>
    <message id="mouse_btn_7">
        <source></source>
        <translation>Button 7</translation>
    </message>
    <message id="mouse_btn_8">
        <source></source>
        <translation>Button 8</translation>
    </message>
    <message id="mouse_btn_9">
        <source></source>
        <translation>Button 9</translation>
    </message>
    <message id="mouse_btn_label">
        <source></source>
        <translation>Mouse Button</translation>
    </message>
    <message id="mouse_btn_middle">
        <source></source>
        <translation>Middle Button</translation>
    </message>
    <message id="mouse_button">
        <source></source>
        <translation>Button</translation>
    </message>
    <message id="mouse_click_btn4">
        <source></source>
        <translation>Button 4</translation>
    </message>
    <message id="mouse_click_btn5">
        <source></source>
        <translation>Button 5</translation>
    </message>
    <message id="mouse_click_btn_format">
        <source></source>
        <translation>Button %1</translation>
    </message>
    <message id="mouse_click_left">
        <source></source>
        <translation>Left Button</translation>
    </message>
    <message id="mouse_click_middle">
        <source></source>
        <translation>Middle Button</translation>
    </message>
    <message id="mouse_click_right">
        <source></source>
        <translation>Right Button</translation>
    </message>
    <message id="mouse_edit_title">
        <source></source>
        <translation>Edit Mouse Button</translation>
    </message>
    <message id="mouse_settings_title">
        <source></source>
        <translation>Actions for Mouse Buttons</translation>
    </message>
    <message id="picker_app_clear">
        <source></source>
        <translation>Clear search</translation>
    </message>
    <message id="picker_app_loading">
        <source></source>
        <translation>Looking for applications…</translation>
    </message>
    <message id="picker_app_no_match">
        <source></source>
        <translation>No application matches.</translation>
    </message>
    <message id="picker_app_none">
        <source></source>
        <translation>No applications found.</translation>
    </message>
    <message id="picker_app_search">
        <source></source>
        <translation>Search applications</translation>
    </message>
    <message id="picker_app_show_all">
        <source></source>
        <translation>Show All %1 Applications</translation>
    </message>
    <message id="picker_app_title">
        <source></source>
        <translation>Choose an Application</translation>
    </message>
    <message id="picker_icon_title">
        <source></source>
        <translation>Choose a Symbol</translation>
    </message>
    <message id="placeholder_app_name">
        <source></source>
        <translation>Name of the application</translation>
    </message>
    <message id="placeholder_sf_symbol">
        <source></source>
        <translation>Name of a symbol, such as star</translation>
    </message>
    <message id="placeholder_url">
        <source></source>
        <translation>https://example.com</translation>
    </message>
    <message id="restart">
        <source></source>
        <translation>Restart</translation>
    </message>
    <message id="settings_not_stored_format">
        <source></source>
        <translation>Changes are not stored, but hold until Velmora ends: %1</translation>
    </message>
    <message id="settings_tab_general">
        <source></source>
        <translation>General</translation>
    </message>
    <message id="settings_tab_mouse">
        <source></source>
        <translation>Mouse Buttons</translation>
    </message>
    <message id="settings_tab_velmora">
        <source></source>
        <translation>Bar Buttons</translation>
    </message>
    <message id="shortcut_add_title">
        <source></source>
        <translation>New Button</translation>
    </message>
    <message id="shortcut_alignment_left">
        <source></source>
        <translation>Left</translation>
    </message>
    <message id="shortcut_alignment_right">
        <source></source>
        <translation>Right</translation>
    </message>
    <message id="shortcut_delete">
        <source></source>
        <translation>Delete</translation>
    </message>
    <message id="shortcut_edit">
        <source></source>
        <translation>Edit…</translation>
    </message>
    <message id="shortcut_edit_title">
        <source></source>
        <translation>Edit Button</translation>
    </message>
    <message id="shortcuts_title">
        <source></source>
        <translation>Buttons on the Bar</translation>
    </message>
    <message id="tos.agree">
        <source></source>
        <extracomment>Agree Button</extracomment>
        <translation>Agree</translation>
    </message>
    <message id="tos.content">
        <source></source>
        <extracomment>Terms of Service Content</extracomment>
        <translation>Please read these few lines before you use Velmora.

What Velmora observes
Velmora asks your desktop for two kinds of input only: the key combination Option+M (Alt+M), and presses of the extra mouse buttons that you bind. While you record a key combination in the settings it also sees the keys you press there. It keeps no record of anything you type or click.

What stays on this computer
Your buttons, your mouse bindings and this agreement are stored in your own configuration folder. Velmora collects nothing and sends nothing anywhere: it opens no network connection of its own. Web pages that your buttons open are opened by your browser, under its own terms.

What Velmora does on your behalf
A click on a button, or a press of a bound mouse button, starts an application, opens an address, runs a shell command or presses a key combination, exactly as you set it up. Shell commands run with your rights and without a further question. Please enter only commands that you understand and trust.

No warranty
Velmora is free software under the MIT licence. It comes as it is, without warranty of any kind; you use it at your own risk.

If you agree, Velmora starts now and does not ask again. If you do not, quit here and nothing is stored.</translation>
    </message>
    <message id="tos.not_stored_format">
        <source></source>
        <translation>Your answer cannot be stored, and you will be asked again next time: %1</translation>
    </message>
    <message id="tos.quit">
        <source></source>
        <extracomment>Quit Button</extracomment>
        <translation>Quit</translation>
    </message>
    <message id="tos.title">
        <source></source>
        <extracomment>Terms of Service Title; Terms of Service</extracomment>
        <translation>Terms of Service</translation>
    </message>
    <message id="trust_message">
        <source></source>
        <translation>This is a Wayland session, which hands keys and mouse buttons only to the application in front. The bar and its buttons work; Option+M (Alt+M), bound mouse buttons and typed key combinations need an X11 session.

You can usually choose one on the login screen.</translation>
    </message>
    <message id="trust_message_extensions">
        <source></source>
        <translation>The X server lacks: %1. The bar and its buttons work; Option+M (Alt+M), bound mouse buttons and typed key combinations need it.</translation>
    </message>
    <message id="trust_title">
        <source></source>
        <translation>Velmora cannot see your keys in this session</translation>
    </message>
    <message id="unknown_version">
        <source></source>
        <translation>Unknown version</translation>
    </message>
    <message id="url_invalid">
        <source></source>
        <translation>This is no address. Write it like https://example.com</translation>
    </message>
    <message id="version_format">
        <source></source>
        <translation>Version %1 (%2)</translation>
    </message>
    <message id="クリア">
        <source></source>
        <translation>Clear</translation>
    </message>
    <message id="例: ⌘C, ⌥⇧N, ⌃⌘Space">
        <source></source>
        <translation>For example ⌘C, ⌥⇧N, ⌃⌘Space</translation>
    </message>
</context>
</TS>
