<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name></name>
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
    <message id="menu_help">
        <source></source>
        <extracomment>Menu tooltip</extracomment>
        <translation>Velmoraメニュー</translation>
    </message>
    <message id="menu_quit">
        <source></source>
        <translation>Velmoraを終了</translation>
    </message>
    <message id="menu_settings">
        <source></source>
        <translation>設定…</translation>
    </message>
    <message id="menu_toggle">
        <source></source>
        <translation>バーの表示を切り替え</translation>
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
Velmoraが受け取る入力は2種類だけです。キーの組み合わせOption+M（Alt+M）と、ご自身で割り当てたマウスの追加ボタンです。設定画面でキーの組み合わせを記録している間は、そこで押されたキーも受け取ります。入力やクリックの内容を記録に残すことはありません。

このコンピュータに残るもの
ボタン、マウスの割り当て、そしてこの同意は、ご自身の設定フォルダに保存されます。Velmoraは情報を収集せず、どこにも送信しません。Velmora自身がネットワークに接続することもありません。ボタンで開くWebページはお使いのブラウザが開き、そのブラウザの規約が適用されます。

Velmoraが代わりに行うこと
ボタンをクリックするか、割り当てたマウスボタンを押すと、設定したとおりにアプリケーションの起動、アドレスを開く操作、シェルコマンドの実行、キー入力を行います。シェルコマンドはお使いのアカウントの権限で、確認なしに実行されます。内容を理解し、信頼できるコマンドだけを登録してください。

無保証
VelmoraはMITライセンスのフリーソフトウェアです。現状のまま提供され、いかなる保証もありません。ご自身の責任でお使いください。

同意するとVelmoraが起動し、次回からこの画面は表示されません。同意しない場合は、ここで終了してください。何も保存されません。</translation>
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
</context>
</TS>
