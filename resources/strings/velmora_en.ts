<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name></name>
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
    <message id="menu_help">
        <source></source>
        <extracomment>Menu tooltip</extracomment>
        <translation>Velmora menu</translation>
    </message>
    <message id="menu_quit">
        <source></source>
        <translation>Quit Velmora</translation>
    </message>
    <message id="menu_settings">
        <source></source>
        <translation>Settings…</translation>
    </message>
    <message id="menu_toggle">
        <source></source>
        <translation>Hide or Show the Bar</translation>
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
</context>
</TS>
