<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name></name>
    <message id="Safari">
        <source></source>
        <translation>Safari</translation>
    </message>
    <message id="about_licence">
        <source></source>
        <translation>© 2026 The Velmora developers。基于 MIT 许可证的自由软件。</translation>
    </message>
    <message id="about_title">
        <source></source>
        <translation>关于 Velmora</translation>
    </message>
    <message id="action_desc_execute">
        <source></source>
        <translation>运行 %1</translation>
    </message>
    <message id="action_desc_key">
        <source></source>
        <translation>按下 %1</translation>
    </message>
    <message id="action_desc_launch">
        <source></source>
        <translation>启动 %1</translation>
    </message>
    <message id="action_desc_open">
        <source></source>
        <translation>打开 %1</translation>
    </message>
    <message id="action_execute_shell">
        <source></source>
        <translation>运行 Shell 命令</translation>
    </message>
    <message id="action_launch_app">
        <source></source>
        <translation>启动应用程序</translation>
    </message>
    <message id="action_open_url">
        <source></source>
        <translation>打开网址</translation>
    </message>
    <message id="action_press_key">
        <source></source>
        <translation>按下组合键</translation>
    </message>
    <message id="add">
        <source></source>
        <translation>添加</translation>
    </message>
    <message id="alert_shell_message">
        <source></source>
        <translation>Velmora 将以您的权限运行此命令，且不再询问。请仅在您了解并信任此命令时保存。</translation>
    </message>
    <message id="alert_shell_title">
        <source></source>
        <translation>要保存此 Shell 命令吗？</translation>
    </message>
    <message id="bar_keeps_windows_below">
        <source></source>
        <translation>让窗口保持在快捷栏下方</translation>
    </message>
    <message id="bar_place">
        <source></source>
        <translation>快捷栏的位置</translation>
    </message>
    <message id="bar_place_below_panel">
        <source></source>
        <translation>桌面面板下方</translation>
    </message>
    <message id="bar_place_top_edge">
        <source></source>
        <translation>屏幕顶边</translation>
    </message>
    <message id="button_cancel">
        <source></source>
        <translation>取消</translation>
    </message>
    <message id="button_close">
        <source></source>
        <translation>关闭</translation>
    </message>
    <message id="button_save">
        <source></source>
        <translation>保存</translation>
    </message>
    <message id="button_select">
        <source></source>
        <translation>选择…</translation>
    </message>
    <message id="delete">
        <source></source>
        <translation>删除</translation>
    </message>
    <message id="edit">
        <source></source>
        <translation>编辑</translation>
    </message>
    <message id="edit_add_format">
        <source></source>
        <translation>添加“%1”</translation>
    </message>
    <message id="edit_change_format">
        <source></source>
        <translation>编辑“%1”</translation>
    </message>
    <message id="edit_import">
        <source></source>
        <translation>导入</translation>
    </message>
    <message id="edit_move_format">
        <source></source>
        <translation>移动“%1”</translation>
    </message>
    <message id="edit_remove_format">
        <source></source>
        <translation>删除“%1”</translation>
    </message>
    <message id="exchange_export">
        <source></source>
        <translation>导出…</translation>
    </message>
    <message id="exchange_export_failed">
        <source></source>
        <translation>文件未写入。</translation>
    </message>
    <message id="exchange_import">
        <source></source>
        <translation>导入…</translation>
    </message>
    <message id="exchange_import_failed">
        <source></source>
        <translation>未导入任何内容。</translation>
    </message>
    <message id="exchange_title">
        <source></source>
        <translation>按钮与偏好设置</translation>
    </message>
    <message id="file_not_regular">
        <source></source>
        <translation>不是普通文件</translation>
    </message>
    <message id="grant_held_by_other">
        <source></source>
        <translation>另一个程序正在使用它。</translation>
    </message>
    <message id="grant_no_such_button">
        <source></source>
        <translation>这里的鼠标没有这个按键。</translation>
    </message>
    <message id="grant_no_such_key">
        <source></source>
        <translation>这个键盘没有这个键。</translation>
    </message>
    <message id="grant_not_offered">
        <source></source>
        <translation>此会话不提供该功能。</translation>
    </message>
    <message id="group_action">
        <source></source>
        <translation>操作</translation>
    </message>
    <message id="group_basic">
        <source></source>
        <translation>外观</translation>
    </message>
    <message id="hotkey_change">
        <source></source>
        <translation>更改…</translation>
    </message>
    <message id="hotkey_change_name">
        <source></source>
        <translation>更改快捷键</translation>
    </message>
    <message id="hotkey_hint">
        <source></source>
        <translation>在任何应用程序中显示和隐藏快捷栏。</translation>
    </message>
    <message id="hotkey_recording">
        <source></source>
        <translation>请按下新的组合键。按 Esc 保持不变。</translation>
    </message>
    <message id="hotkey_refused">
        <source></source>
        <translation>快捷键需要 Ctrl、Alt 或 Super 加上另一个键。</translation>
    </message>
    <message id="hotkey_reset">
        <source></source>
        <translation>默认</translation>
    </message>
    <message id="hotkey_reset_name">
        <source></source>
        <translation>默认快捷键</translation>
    </message>
    <message id="hotkey_title">
        <source></source>
        <translation>快捷键</translation>
    </message>
    <message id="key_capture_leave">
        <source></source>
        <translation>按两次 Tab 或 Shift+Tab：不作更改并离开</translation>
    </message>
    <message id="label_alignment">
        <source></source>
        <translation>位置</translation>
    </message>
    <message id="label_app">
        <source></source>
        <translation>应用程序</translation>
    </message>
    <message id="label_command">
        <source></source>
        <translation>命令</translation>
    </message>
    <message id="label_icon">
        <source></source>
        <translation>图标</translation>
    </message>
    <message id="label_key_combo">
        <source></source>
        <translation>组合键</translation>
    </message>
    <message id="label_title">
        <source></source>
        <translation>标题</translation>
    </message>
    <message id="label_url">
        <source></source>
        <translation>网址</translation>
    </message>
    <message id="list_empty">
        <source></source>
        <translation>这里还没有内容。点按“添加”即可新建。</translation>
    </message>
    <message id="login_failed_format">
        <source></source>
        <translation>无法保存：%1</translation>
    </message>
    <message id="login_start">
        <source></source>
        <translation>登录时启动</translation>
    </message>
    <message id="login_switched_off">
        <source></source>
        <translation>已在桌面设置中关闭。</translation>
    </message>
    <message id="login_title">
        <source></source>
        <translation>启动</translation>
    </message>
    <message id="menu_help">
        <source></source>
        <extracomment>Menu tooltip</extracomment>
        <translation>Velmora 菜单</translation>
    </message>
    <message id="menu_quit">
        <source></source>
        <translation>退出 Velmora</translation>
    </message>
    <message id="menu_redo_format">
        <source></source>
        <translation>重做：%1</translation>
    </message>
    <message id="menu_settings">
        <source></source>
        <translation>设置…</translation>
    </message>
    <message id="menu_toggle">
        <source></source>
        <translation>显示或隐藏快捷栏</translation>
    </message>
    <message id="menu_undo_format">
        <source></source>
        <translation>撤销：%1</translation>
    </message>
    <message id="mouse_action_label">
        <source></source>
        <translation>操作</translation>
    </message>
    <message id="mouse_add_title">
        <source></source>
        <translation>添加鼠标按键</translation>
    </message>
    <message id="mouse_btn_4">
        <source></source>
        <translation>按键 4</translation>
    </message>
    <message id="mouse_btn_5">
        <source></source>
        <translation>按键 5</translation>
    </message>
    <message id="mouse_btn_6">
        <source></source>
        <translation>按键 6</translation>
    </message>
    <message id="mouse_btn_7">
        <source></source>
        <translation>按键 7</translation>
    </message>
    <message id="mouse_btn_8">
        <source></source>
        <translation>按键 8</translation>
    </message>
    <message id="mouse_btn_9">
        <source></source>
        <translation>按键 9</translation>
    </message>
    <message id="mouse_btn_label">
        <source></source>
        <translation>鼠标按键</translation>
    </message>
    <message id="mouse_btn_middle">
        <source></source>
        <translation>中键</translation>
    </message>
    <message id="mouse_button">
        <source></source>
        <translation>按键</translation>
    </message>
    <message id="mouse_click_btn4">
        <source></source>
        <translation>按键 4</translation>
    </message>
    <message id="mouse_click_btn5">
        <source></source>
        <translation>按键 5</translation>
    </message>
    <message id="mouse_click_btn_format">
        <source></source>
        <translation>按键 %1</translation>
    </message>
    <message id="mouse_click_left">
        <source></source>
        <translation>左键</translation>
    </message>
    <message id="mouse_click_middle">
        <source></source>
        <translation>中键</translation>
    </message>
    <message id="mouse_click_right">
        <source></source>
        <translation>右键</translation>
    </message>
    <message id="mouse_edit_title">
        <source></source>
        <translation>编辑鼠标按键</translation>
    </message>
    <message id="mouse_settings_title">
        <source></source>
        <translation>鼠标按键的操作</translation>
    </message>
    <message id="picker_app_clear">
        <source></source>
        <translation>清除搜索</translation>
    </message>
    <message id="picker_app_loading">
        <source></source>
        <translation>正在查找应用程序…</translation>
    </message>
    <message id="picker_app_no_match">
        <source></source>
        <translation>没有匹配的应用程序。</translation>
    </message>
    <message id="picker_app_none">
        <source></source>
        <translation>找不到应用程序。</translation>
    </message>
    <message id="picker_app_search">
        <source></source>
        <translation>搜索应用程序</translation>
    </message>
    <message id="picker_app_show_all">
        <source></source>
        <translation>显示全部 %1 个应用程序</translation>
    </message>
    <message id="picker_app_title">
        <source></source>
        <translation>选择应用程序</translation>
    </message>
    <message id="picker_icon_title">
        <source></source>
        <translation>选择图标</translation>
    </message>
    <message id="placeholder_app_name">
        <source></source>
        <translation>应用程序名称</translation>
    </message>
    <message id="placeholder_sf_symbol">
        <source></source>
        <translation>图标名称，例如 star</translation>
    </message>
    <message id="placeholder_url">
        <source></source>
        <translation>https://example.com</translation>
    </message>
    <message id="restart">
        <source></source>
        <translation>重新启动</translation>
    </message>
    <message id="settings_not_stored_format">
        <source></source>
        <translation>更改尚未保存，但在 Velmora 退出前有效：%1</translation>
    </message>
    <message id="settings_tab_general">
        <source></source>
        <translation>通用</translation>
    </message>
    <message id="settings_tab_mouse">
        <source></source>
        <translation>鼠标按键</translation>
    </message>
    <message id="settings_tab_velmora">
        <source></source>
        <translation>快捷栏按钮</translation>
    </message>
    <message id="shortcut_add_title">
        <source></source>
        <translation>添加按钮</translation>
    </message>
    <message id="shortcut_alignment_left">
        <source></source>
        <translation>左侧</translation>
    </message>
    <message id="shortcut_alignment_right">
        <source></source>
        <translation>右侧</translation>
    </message>
    <message id="shortcut_delete">
        <source></source>
        <translation>删除</translation>
    </message>
    <message id="shortcut_edit">
        <source></source>
        <translation>编辑…</translation>
    </message>
    <message id="shortcut_edit_title">
        <source></source>
        <translation>编辑按钮</translation>
    </message>
    <message id="shortcuts_title">
        <source></source>
        <translation>快捷栏上的按钮</translation>
    </message>
    <message id="tos.agree">
        <source></source>
        <extracomment>Agree Button</extracomment>
        <translation>同意</translation>
    </message>
    <message id="tos.content">
        <source></source>
        <extracomment>Terms of Service Content</extracomment>
        <translation>使用 Velmora 之前，请阅读以下内容。

Velmora 接收的输入
Velmora 只接收两类输入：组合键 Option+M（Alt+M），以及您绑定的鼠标附加按键。您在设置中录制组合键时，它也会接收您当时按下的按键。Velmora 不会记录您键入或点击的任何内容。

保存在这台电脑上的内容
您的按钮、鼠标绑定以及您的同意记录都保存在您自己的配置文件夹中。Velmora 不收集也不发送任何信息，自身不会建立任何网络连接。由按钮打开的网页会在您的浏览器中打开，并适用该浏览器的条款。

Velmora 代您执行的操作
点击按钮或按下已绑定的鼠标按键，会完全按照您的设置启动应用程序、打开网址、运行 Shell 命令或发送组合键。Shell 命令以您的权限运行，且不再询问。请只输入您了解并信任的命令。

不提供担保
Velmora 是基于 MIT 许可证的自由软件，按原样提供，不附带任何形式的担保；使用风险由您自行承担。

如果您同意，Velmora 将立即启动，且不再询问。如果不同意，请在此退出，不会保存任何内容。</translation>
    </message>
    <message id="tos.not_stored_format">
        <source></source>
        <translation>无法保存您的选择，下次启动时会再次询问：%1</translation>
    </message>
    <message id="tos.quit">
        <source></source>
        <extracomment>Quit Button</extracomment>
        <translation>退出</translation>
    </message>
    <message id="tos.title">
        <source></source>
        <extracomment>Terms of Service Title; Terms of Service</extracomment>
        <translation>使用条款</translation>
    </message>
    <message id="trust_message">
        <source></source>
        <translation>这是 Wayland 会话，按键和鼠标按键只会传给最前面的应用程序。快捷栏及其按钮可以使用；Option+M（Alt+M）、已绑定的鼠标按键以及发送组合键需要 X11 会话。

通常可以在登录界面选择 X11 会话。</translation>
    </message>
    <message id="trust_message_extensions">
        <source></source>
        <translation>X 服务器缺少：%1。快捷栏及其按钮可以使用；Option+M（Alt+M）、已绑定的鼠标按键以及发送组合键需要它。</translation>
    </message>
    <message id="trust_title">
        <source></source>
        <translation>Velmora 在此会话中无法检测按键</translation>
    </message>
    <message id="unknown_version">
        <source></source>
        <translation>未知版本</translation>
    </message>
    <message id="url_invalid">
        <source></source>
        <translation>这不是网址。示例：https://example.com</translation>
    </message>
    <message id="version_format">
        <source></source>
        <translation>版本 %1 (%2)</translation>
    </message>
    <message id="クリア">
        <source></source>
        <translation>清除</translation>
    </message>
    <message id="例: ⌘C, ⌥⇧N, ⌃⌘Space">
        <source></source>
        <translation>例如 ⌘C、⌥⇧N、⌃⌘Space</translation>
    </message>
</context>
</TS>
