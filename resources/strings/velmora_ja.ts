<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name></name>
    <message id="Safari">
        <source></source>
        <translation>Safari</translation>
    </message>
    <message id="about_licence">
        <source></source>
        <translation>© 2026 The Velmora developers. MITライセンスのフリーソフトウェアです。</translation>
    </message>
    <message id="about_title">
        <source></source>
        <translation>Velmoraについて</translation>
    </message>
    <message id="action_desc_execute">
        <source></source>
        <translation>%1を実行</translation>
    </message>
    <message id="action_desc_key">
        <source></source>
        <translation>%1を押す</translation>
    </message>
    <message id="action_desc_launch">
        <source></source>
        <translation>%1を起動</translation>
    </message>
    <message id="action_desc_open">
        <source></source>
        <translation>%1を開く</translation>
    </message>
    <message id="action_execute_shell">
        <source></source>
        <translation>シェルコマンドを実行</translation>
    </message>
    <message id="action_launch_app">
        <source></source>
        <translation>アプリを起動</translation>
    </message>
    <message id="action_open_url">
        <source></source>
        <translation>URLを開く</translation>
    </message>
    <message id="action_press_key">
        <source></source>
        <translation>キーを押す</translation>
    </message>
    <message id="add">
        <source></source>
        <translation>追加</translation>
    </message>
    <message id="alert_shell_message">
        <source></source>
        <translation>Velmoraはこのコマンドをお使いのアカウントの権限で、確認なしに実行します。内容を理解し、信頼できる場合にのみ保存してください。</translation>
    </message>
    <message id="alert_shell_title">
        <source></source>
        <translation>このシェルコマンドを保存しますか？</translation>
    </message>
    <message id="bar_keeps_windows_below">
        <source></source>
        <translation>ウインドウをバーの下に収める</translation>
    </message>
    <message id="bar_place">
        <source></source>
        <translation>バーの位置</translation>
    </message>
    <message id="bar_place_below_panel">
        <source></source>
        <translation>デスクトップのパネルの下</translation>
    </message>
    <message id="bar_place_top_edge">
        <source></source>
        <translation>画面の上端</translation>
    </message>
    <message id="button_cancel">
        <source></source>
        <translation>キャンセル</translation>
    </message>
    <message id="button_close">
        <source></source>
        <translation>閉じる</translation>
    </message>
    <message id="button_save">
        <source></source>
        <translation>保存</translation>
    </message>
    <message id="button_select">
        <source></source>
        <translation>選択...</translation>
    </message>
    <message id="delete">
        <source></source>
        <translation>削除</translation>
    </message>
    <message id="edit">
        <source></source>
        <translation>編集</translation>
    </message>
    <message id="edit_add_format">
        <source></source>
        <translation>「%1」を追加</translation>
    </message>
    <message id="edit_change_format">
        <source></source>
        <translation>「%1」を編集</translation>
    </message>
    <message id="edit_import">
        <source></source>
        <translation>読み込み</translation>
    </message>
    <message id="edit_move_format">
        <source></source>
        <translation>「%1」を移動</translation>
    </message>
    <message id="edit_remove_format">
        <source></source>
        <translation>「%1」を削除</translation>
    </message>
    <message id="exchange_export">
        <source></source>
        <translation>書き出す…</translation>
    </message>
    <message id="exchange_export_failed">
        <source></source>
        <translation>ファイルは書き出されませんでした。</translation>
    </message>
    <message id="exchange_import">
        <source></source>
        <translation>読み込む…</translation>
    </message>
    <message id="exchange_import_failed">
        <source></source>
        <translation>何も読み込まれませんでした。</translation>
    </message>
    <message id="exchange_title">
        <source></source>
        <translation>ボタンと環境設定</translation>
    </message>
    <message id="file_not_regular">
        <source></source>
        <translation>通常のファイルではありません</translation>
    </message>
    <message id="grant_held_by_other">
        <source></source>
        <translation>ほかのプログラムが現在使用しています。</translation>
    </message>
    <message id="grant_no_such_button">
        <source></source>
        <translation>このようなマウスボタンはありません。</translation>
    </message>
    <message id="grant_no_such_key">
        <source></source>
        <translation>このキーボードにはそのキーがありません。</translation>
    </message>
    <message id="grant_not_offered">
        <source></source>
        <translation>このセッションでは利用できません。</translation>
    </message>
    <message id="group_action">
        <source></source>
        <translation>動作</translation>
    </message>
    <message id="group_basic">
        <source></source>
        <translation>表示</translation>
    </message>
    <message id="hotkey_change">
        <source></source>
        <translation>変更…</translation>
    </message>
    <message id="hotkey_change_name">
        <source></source>
        <translation>ホットキーを変更</translation>
    </message>
    <message id="hotkey_hint">
        <source></source>
        <translation>どのアプリケーションでもバーの表示と非表示を切り替えます。</translation>
    </message>
    <message id="hotkey_recording">
        <source></source>
        <translation>新しい組み合わせを押してください。Escで変更せずに終わります。</translation>
    </message>
    <message id="hotkey_refused">
        <source></source>
        <translation>ホットキーには、Ctrl、Alt、Superのいずれかとほかのキーが必要です。</translation>
    </message>
    <message id="hotkey_reset">
        <source></source>
        <translation>デフォルト</translation>
    </message>
    <message id="hotkey_reset_name">
        <source></source>
        <translation>デフォルトのホットキー</translation>
    </message>
    <message id="hotkey_title">
        <source></source>
        <translation>ホットキー</translation>
    </message>
    <message id="key_capture_leave">
        <source></source>
        <translation>Tab または Shift+Tab を2回押すと変更せずに移動</translation>
    </message>
    <message id="label_alignment">
        <source></source>
        <translation>位置</translation>
    </message>
    <message id="label_app">
        <source></source>
        <translation>アプリ</translation>
    </message>
    <message id="label_command">
        <source></source>
        <translation>コマンド</translation>
    </message>
    <message id="label_icon">
        <source></source>
        <translation>シンボル</translation>
    </message>
    <message id="label_key_combo">
        <source></source>
        <translation>キー</translation>
    </message>
    <message id="label_title">
        <source></source>
        <translation>タイトル</translation>
    </message>
    <message id="label_url">
        <source></source>
        <translation>URL</translation>
    </message>
    <message id="list_empty">
        <source></source>
        <translation>まだ何もありません。「追加」で最初の項目を作成できます。</translation>
    </message>
    <message id="login_failed_format">
        <source></source>
        <translation>保存できませんでした：%1</translation>
    </message>
    <message id="login_start">
        <source></source>
        <translation>ログイン時に起動</translation>
    </message>
    <message id="login_switched_off">
        <source></source>
        <translation>デスクトップの設定でオフになっています。</translation>
    </message>
    <message id="login_title">
        <source></source>
        <translation>起動</translation>
    </message>
    <message id="menu_help">
        <source></source>
        <extracomment>Menu tooltip</extracomment>
        <translation>Velmoraメニュー</translation>
    </message>
    <message id="menu_quit">
        <source></source>
        <translation>Velmoraを終了</translation>
    </message>
    <message id="menu_redo_format">
        <source></source>
        <translation>やり直す：%1</translation>
    </message>
    <message id="menu_settings">
        <source></source>
        <translation>設定...</translation>
    </message>
    <message id="menu_toggle">
        <source></source>
        <translation>バーの表示を切り替え</translation>
    </message>
    <message id="menu_undo_format">
        <source></source>
        <translation>取り消す：%1</translation>
    </message>
    <message id="mouse_action_label">
        <source></source>
        <translation>動作</translation>
    </message>
    <message id="mouse_add_title">
        <source></source>
        <translation>新規マウスボタン</translation>
    </message>
    <message id="mouse_btn_4">
        <source></source>
        <translation>ボタン4</translation>
    </message>
    <message id="mouse_btn_5">
        <source></source>
        <translation>ボタン5</translation>
    </message>
    <message id="mouse_btn_6">
        <source></source>
        <translation>ボタン6</translation>
    </message>
    <message id="mouse_btn_7">
        <source></source>
        <translation>ボタン7</translation>
    </message>
    <message id="mouse_btn_8">
        <source></source>
        <translation>ボタン8</translation>
    </message>
    <message id="mouse_btn_9">
        <source></source>
        <translation>ボタン9</translation>
    </message>
    <message id="mouse_btn_label">
        <source></source>
        <translation>マウスボタン</translation>
    </message>
    <message id="mouse_btn_middle">
        <source></source>
        <translation>中央ボタン</translation>
    </message>
    <message id="mouse_button">
        <source></source>
        <translation>ボタン</translation>
    </message>
    <message id="mouse_click_btn4">
        <source></source>
        <translation>ボタン4</translation>
    </message>
    <message id="mouse_click_btn5">
        <source></source>
        <translation>ボタン5</translation>
    </message>
    <message id="mouse_click_btn_format">
        <source></source>
        <translation>ボタン%1</translation>
    </message>
    <message id="mouse_click_left">
        <source></source>
        <translation>左ボタン</translation>
    </message>
    <message id="mouse_click_middle">
        <source></source>
        <translation>中央ボタン</translation>
    </message>
    <message id="mouse_click_right">
        <source></source>
        <translation>右ボタン</translation>
    </message>
    <message id="mouse_edit_title">
        <source></source>
        <translation>マウスボタンを編集</translation>
    </message>
    <message id="mouse_settings_title">
        <source></source>
        <translation>マウスボタンの動作</translation>
    </message>
    <message id="picker_app_clear">
        <source></source>
        <translation>検索を消去</translation>
    </message>
    <message id="picker_app_loading">
        <source></source>
        <translation>アプリを探しています...</translation>
    </message>
    <message id="picker_app_no_match">
        <source></source>
        <translation>一致するアプリはありません。</translation>
    </message>
    <message id="picker_app_none">
        <source></source>
        <translation>アプリが見つかりません。</translation>
    </message>
    <message id="picker_app_search">
        <source></source>
        <translation>アプリを検索</translation>
    </message>
    <message id="picker_app_show_all">
        <source></source>
        <translation>%1個のアプリをすべて表示</translation>
    </message>
    <message id="picker_app_title">
        <source></source>
        <translation>アプリを選択</translation>
    </message>
    <message id="picker_icon_title">
        <source></source>
        <translation>シンボルを選択</translation>
    </message>
    <message id="placeholder_app_name">
        <source></source>
        <translation>アプリの名前</translation>
    </message>
    <message id="placeholder_sf_symbol">
        <source></source>
        <translation>シンボルの名前（例: star）</translation>
    </message>
    <message id="placeholder_url">
        <source></source>
        <translation>https://example.com</translation>
    </message>
    <message id="restart">
        <source></source>
        <translation>再起動</translation>
    </message>
    <message id="settings_not_stored_format">
        <source></source>
        <translation>変更は保存されていませんが、Velmora を終了するまで有効です: %1</translation>
    </message>
    <message id="settings_tab_general">
        <source></source>
        <translation>一般</translation>
    </message>
    <message id="settings_tab_mouse">
        <source></source>
        <translation>マウスボタン</translation>
    </message>
    <message id="settings_tab_velmora">
        <source></source>
        <translation>バーのボタン</translation>
    </message>
    <message id="shortcut_add_title">
        <source></source>
        <translation>新規ボタン</translation>
    </message>
    <message id="shortcut_alignment_left">
        <source></source>
        <translation>左</translation>
    </message>
    <message id="shortcut_alignment_right">
        <source></source>
        <translation>右</translation>
    </message>
    <message id="shortcut_delete">
        <source></source>
        <translation>削除</translation>
    </message>
    <message id="shortcut_edit">
        <source></source>
        <translation>編集...</translation>
    </message>
    <message id="shortcut_edit_title">
        <source></source>
        <translation>ボタンを編集</translation>
    </message>
    <message id="shortcuts_title">
        <source></source>
        <translation>バーに表示するボタン</translation>
    </message>
    <message id="tos.agree">
        <source></source>
        <extracomment>Agree Button</extracomment>
        <translation>同意する</translation>
    </message>
    <message id="tos.content">
        <source></source>
        <extracomment>Terms of Service Content</extracomment>
        <translation>ご利用の前に、以下の内容をお読みください。

Velmoraが検知するもの
Velmoraが受け取る入力は2種類だけです。Option+M（Alt+M）のキー操作と、ご自身で割り当てたマウスの追加ボタンの操作です。設定画面でキーの組み合わせを登録している間は、そこで押されたキーも受け取ります。入力やクリックの内容を記録に残すことはありません。

このコンピュータに残るもの
ボタン、マウスの割り当て、そしてこの同意は、ご自身の設定フォルダに保存されます。Velmoraは情報を収集せず、どこにも送信しません。Velmora自身がネットワークに接続することもありません。ボタンで開くWebページはお使いのブラウザが開き、そのブラウザの規約が適用されます。

Velmoraが代わりに行うこと
ボタンをクリックするか、割り当てたマウスボタンを押すと、設定した内容に応じて、アプリの起動、URLの表示、シェルコマンドの実行、キー入力のいずれかを行います。シェルコマンドはお使いのアカウントの権限で、確認なしに実行されます。内容を理解し、信頼できるコマンドだけを登録してください。

無保証
VelmoraはMITライセンスのフリーソフトウェアです。現状のまま提供され、いかなる保証もありません。ご自身の責任でお使いください。

同意するとVelmoraがすぐに起動し、次回からこの画面は表示されません。同意しない場合は、ここで終了してください。何も保存されません。</translation>
    </message>
    <message id="tos.not_stored_format">
        <source></source>
        <translation>回答を保存できないため、次回の起動時に再び確認します: %1</translation>
    </message>
    <message id="tos.quit">
        <source></source>
        <extracomment>Quit Button</extracomment>
        <translation>終了</translation>
    </message>
    <message id="tos.title">
        <source></source>
        <extracomment>Terms of Service Title; Terms of Service</extracomment>
        <translation>利用規約</translation>
    </message>
    <message id="trust_message">
        <source></source>
        <translation>現在のセッションはWaylandです。Waylandでは、キーとマウスボタンは最前面のアプリケーションにしか届きません。バーとそのボタンは使えますが、Option+M（Alt+M）、割り当てたマウスボタン、キー入力の送信にはX11セッションが必要です。

通常はログイン画面でX11セッションを選べます。</translation>
    </message>
    <message id="trust_message_extensions">
        <source></source>
        <translation>Xサーバーに次の機能がありません：%1。バーとそのボタンは使えますが、Option+M（Alt+M）、割り当てたマウスボタン、キー入力の送信にはこれが必要です。</translation>
    </message>
    <message id="trust_title">
        <source></source>
        <translation>このセッションではVelmoraがキー操作を検知できません</translation>
    </message>
    <message id="unknown_version">
        <source></source>
        <translation>バージョン不明</translation>
    </message>
    <message id="url_invalid">
        <source></source>
        <translation>アドレスではありません。例: https://example.com</translation>
    </message>
    <message id="version_format">
        <source></source>
        <translation>バージョン %1（%2）</translation>
    </message>
    <message id="クリア">
        <source></source>
        <translation>クリア</translation>
    </message>
    <message id="例: ⌘C, ⌥⇧N, ⌃⌘Space">
        <source></source>
        <translation>例: ⌘C, ⌥⇧N, ⌃⌘Space</translation>
    </message>
</context>
</TS>
