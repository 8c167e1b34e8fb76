<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name></name>
    <message id="Safari">
        <source></source>
        <translation>Safari</translation>
    </message>
    <message id="about_licence">
        <source></source>
        <translation>© 2026 The Velmora developers. Logiciel libre sous licence MIT.</translation>
    </message>
    <message id="about_title">
        <source></source>
        <translation>À propos de Velmora</translation>
    </message>
    <message id="action_desc_execute">
        <source></source>
        <translation>Exécuter %1</translation>
    </message>
    <message id="action_desc_key">
        <source></source>
        <translation>Appuyer sur %1</translation>
    </message>
    <message id="action_desc_launch">
        <source></source>
        <translation>Lancer %1</translation>
    </message>
    <message id="action_desc_open">
        <source></source>
        <translation>Ouvrir %1</translation>
    </message>
    <message id="action_execute_shell">
        <source></source>
        <translation>Exécuter une commande</translation>
    </message>
    <message id="action_launch_app">
        <source></source>
        <translation>Lancer une application</translation>
    </message>
    <message id="action_open_url">
        <source></source>
        <translation>Ouvrir une adresse</translation>
    </message>
    <message id="action_press_key">
        <source></source>
        <translation>Appuyer sur des touches</translation>
    </message>
    <message id="add">
        <source></source>
        <translation>Ajouter</translation>
    </message>
    <message id="alert_shell_message">
        <source></source>
        <translation>Velmora l’exécutera avec vos droits et sans autre confirmation. Enregistrez-la seulement si vous savez ce qu’elle fait et si vous lui faites confiance.</translation>
    </message>
    <message id="alert_shell_title">
        <source></source>
        <translation>Enregistrer cette commande ?</translation>
    </message>
    <message id="bar_keeps_windows_below">
        <source></source>
        <translation>Garder les fenêtres sous la barre</translation>
    </message>
    <message id="bar_place">
        <source></source>
        <translation>Position de la barre</translation>
    </message>
    <message id="bar_place_below_panel">
        <source></source>
        <translation>Sous le panneau du bureau</translation>
    </message>
    <message id="bar_place_top_edge">
        <source></source>
        <translation>Au bord supérieur</translation>
    </message>
    <message id="button_cancel">
        <source></source>
        <translation>Annuler</translation>
    </message>
    <message id="button_close">
        <source></source>
        <translation>Fermer</translation>
    </message>
    <message id="button_save">
        <source></source>
        <translation>Enregistrer</translation>
    </message>
    <message id="button_select">
        <source></source>
        <translation>Choisir…</translation>
    </message>
    <message id="delete">
        <source></source>
        <translation>Supprimer</translation>
    </message>
    <message id="edit">
        <source></source>
        <translation>Modifier</translation>
    </message>
    <message id="edit_add_format">
        <source></source>
        <translation>Ajouter « %1 »</translation>
    </message>
    <message id="edit_change_format">
        <source></source>
        <translation>Modifier « %1 »</translation>
    </message>
    <message id="edit_import">
        <source></source>
        <translation>Importer</translation>
    </message>
    <message id="edit_move_format">
        <source></source>
        <translation>Déplacer « %1 »</translation>
    </message>
    <message id="edit_remove_format">
        <source></source>
        <translation>Supprimer « %1 »</translation>
    </message>
    <message id="exchange_export">
        <source></source>
        <translation>Exporter…</translation>
    </message>
    <message id="exchange_export_failed">
        <source></source>
        <translation>Le fichier n’a pas été écrit.</translation>
    </message>
    <message id="exchange_import">
        <source></source>
        <translation>Importer…</translation>
    </message>
    <message id="exchange_import_failed">
        <source></source>
        <translation>Rien n’a été importé.</translation>
    </message>
    <message id="exchange_title">
        <source></source>
        <translation>Boutons et préférences</translation>
    </message>
    <message id="file_not_regular">
        <source></source>
        <translation>Ce n’est pas un fichier ordinaire</translation>
    </message>
    <message id="grant_held_by_other">
        <source></source>
        <translation>Un autre programme l’utilise en ce moment.</translation>
    </message>
    <message id="grant_no_such_button">
        <source></source>
        <translation>Aucune souris n’a ce bouton ici.</translation>
    </message>
    <message id="grant_no_such_key">
        <source></source>
        <translation>Ce clavier n’a pas cette touche.</translation>
    </message>
    <message id="grant_not_offered">
        <source></source>
        <translation>Cette session ne le permet pas.</translation>
    </message>
    <message id="group_action">
        <source></source>
        <translation>Action</translation>
    </message>
    <message id="group_basic">
        <source></source>
        <translation>Apparence</translation>
    </message>
    <message id="hotkey_change">
        <source></source>
        <translation>Modifier…</translation>
    </message>
    <message id="hotkey_change_name">
        <source></source>
        <translation>Modifier le raccourci clavier</translation>
    </message>
    <message id="hotkey_hint">
        <source></source>
        <translation>Affiche et masque la barre dans toutes les applications.</translation>
    </message>
    <message id="hotkey_recording">
        <source></source>
        <translation>Appuyez sur la nouvelle combinaison. Échap laisse tout en l’état.</translation>
    </message>
    <message id="hotkey_refused">
        <source></source>
        <translation>Un raccourci a besoin de Ctrl, Alt ou Super avec une autre touche.</translation>
    </message>
    <message id="hotkey_reset">
        <source></source>
        <translation>Par défaut</translation>
    </message>
    <message id="hotkey_reset_name">
        <source></source>
        <translation>Raccourci clavier par défaut</translation>
    </message>
    <message id="hotkey_title">
        <source></source>
        <translation>Raccourci clavier</translation>
    </message>
    <message id="key_capture_leave">
        <source></source>
        <translation>Deux fois Tab ou Maj+Tab : quitter sans changement</translation>
    </message>
    <message id="label_alignment">
        <source></source>
        <translation>Côté</translation>
    </message>
    <message id="label_app">
        <source></source>
        <translation>Application</translation>
    </message>
    <message id="label_command">
        <source></source>
        <translation>Commande</translation>
    </message>
    <message id="label_icon">
        <source></source>
        <translation>Symbole</translation>
    </message>
    <message id="label_key_combo">
        <source></source>
        <translation>Touches</translation>
    </message>
    <message id="label_title">
        <source></source>
        <translation>Titre</translation>
    </message>
    <message id="label_url">
        <source></source>
        <translation>Adresse</translation>
    </message>
    <message id="list_empty">
        <source></source>
        <translation>Rien ici pour l’instant. « Ajouter » crée le premier élément.</translation>
    </message>
    <message id="login_failed_format">
        <source></source>
        <translation>Impossible de l’enregistrer : %1</translation>
    </message>
    <message id="login_start">
        <source></source>
        <translation>Démarrer à l’ouverture de session</translation>
    </message>
    <message id="login_switched_off">
        <source></source>
        <translation>Désactivé dans les réglages du bureau.</translation>
    </message>
    <message id="login_title">
        <source></source>
        <translation>Démarrage</translation>
    </message>
    <message id="menu_help">
        <source></source>
        <extracomment>Menu tooltip</extracomment>
        <translation>Menu de Velmora</translation>
    </message>
    <message id="menu_quit">
        <source></source>
        <translation>Quitter Velmora</translation>
    </message>
    <message id="menu_redo_format">
        <source></source>
        <translation>Rétablir : %1</translation>
    </message>
    <message id="menu_settings">
        <source></source>
        <translation>Réglages…</translation>
    </message>
    <message id="menu_toggle">
        <source></source>
        <translation>Masquer ou afficher la barre</translation>
    </message>
    <message id="menu_undo_format">
        <source></source>
        <translation>Annuler : %1</translation>
    </message>
    <message id="mouse_action_label">
        <source></source>
        <translation>Action</translation>
    </message>
    <message id="mouse_add_title">
        <source></source>
        <translation>Nouveau bouton de souris</translation>
    </message>
    <message id="mouse_btn_4">
        <source></source>
        <translation>Bouton 4</translation>
    </message>
    <message id="mouse_btn_5">
        <source></source>
        <translation>Bouton 5</translation>
    </message>
    <message id="mouse_btn_6">
        <source></source>
        <translation>Bouton 6</translation>
    </message>
    <message id="mouse_btn_7">
        <source></source>
        <translation>Bouton 7</translation>
    </message>
    <message id="mouse_btn_8">
        <source></source>
        <translation>Bouton 8</translation>
    </message>
    <message id="mouse_btn_9">
        <source></source>
        <translation>Bouton 9</translation>
    </message>
    <message id="mouse_btn_label">
        <source></source>
        <translation>Bouton</translation>
    </message>
    <message id="mouse_btn_middle">
        <source></source>
        <translation>Bouton central</translation>
    </message>
    <message id="mouse_button">
        <source></source>
        <translation>Bouton</translation>
    </message>
    <message id="mouse_click_btn4">
        <source></source>
        <translation>Bouton 4</translation>
    </message>
    <message id="mouse_click_btn5">
        <source></source>
        <translation>Bouton 5</translation>
    </message>
    <message id="mouse_click_btn_format">
        <source></source>
        <translation>Bouton %1</translation>
    </message>
    <message id="mouse_click_left">
        <source></source>
        <translation>Bouton gauche</translation>
    </message>
    <message id="mouse_click_middle">
        <source></source>
        <translation>Bouton central</translation>
    </message>
    <message id="mouse_click_right">
        <source></source>
        <translation>Bouton droit</translation>
    </message>
    <message id="mouse_edit_title">
        <source></source>
        <translation>Modifier le bouton de souris</translation>
    </message>
    <message id="mouse_settings_title">
        <source></source>
        <translation>Actions des boutons de souris</translation>
    </message>
    <message id="picker_app_clear">
        <source></source>
        <translation>Effacer la recherche</translation>
    </message>
    <message id="picker_app_loading">
        <source></source>
        <translation>Recherche des applications…</translation>
    </message>
    <message id="picker_app_no_match">
        <source></source>
        <translation>Aucune application ne correspond.</translation>
    </message>
    <message id="picker_app_none">
        <source></source>
        <translation>Aucune application trouvée.</translation>
    </message>
    <message id="picker_app_search">
        <source></source>
        <translation>Rechercher une application</translation>
    </message>
    <message id="picker_app_show_all">
        <source></source>
        <translation>Afficher les %1 applications</translation>
    </message>
    <message id="picker_app_title">
        <source></source>
        <translation>Choisir une application</translation>
    </message>
    <message id="picker_icon_title">
        <source></source>
        <translation>Choisir un symbole</translation>
    </message>
    <message id="placeholder_app_name">
        <source></source>
        <translation>Nom de l’application</translation>
    </message>
    <message id="placeholder_sf_symbol">
        <source></source>
        <translation>Nom d’un symbole, par exemple star</translation>
    </message>
    <message id="placeholder_url">
        <source></source>
        <translation>https://example.com</translation>
    </message>
    <message id="restart">
        <source></source>
        <translation>Redémarrer</translation>
    </message>
    <message id="settings_not_stored_format">
        <source></source>
        <translation>Les modifications ne sont pas enregistrées, mais restent valables jusqu’à la fermeture de Velmora : %1</translation>
    </message>
    <message id="settings_tab_general">
        <source></source>
        <translation>Général</translation>
    </message>
    <message id="settings_tab_mouse">
        <source></source>
        <translation>Boutons de souris</translation>
    </message>
    <message id="settings_tab_velmora">
        <source></source>
        <translation>Boutons de la barre</translation>
    </message>
    <message id="shortcut_add_title">
        <source></source>
        <translation>Nouveau bouton</translation>
    </message>
    <message id="shortcut_alignment_left">
        <source></source>
        <translation>Gauche</translation>
    </message>
    <message id="shortcut_alignment_right">
        <source></source>
        <translation>Droite</translation>
    </message>
    <message id="shortcut_delete">
        <source></source>
        <translation>Supprimer</translation>
    </message>
    <message id="shortcut_edit">
        <source></source>
        <translation>Modifier…</translation>
    </message>
    <message id="shortcut_edit_title">
        <source></source>
        <translation>Modifier le bouton</translation>
    </message>
    <message id="shortcuts_title">
        <source></source>
        <translation>Boutons dans la barre</translation>
    </message>
    <message id="tos.agree">
        <source></source>
        <extracomment>Agree Button</extracomment>
        <translation>Accepter</translation>
    </message>
    <message id="tos.content">
        <source></source>
        <extracomment>Terms of Service Content</extracomment>
        <translation>Veuillez lire ces quelques lignes avant d’utiliser Velmora.

Ce que Velmora observe
Velmora ne reçoit de votre bureau que deux types d’entrées : la combinaison de touches Option+M (Alt+M) et l’appui sur les boutons supplémentaires de la souris que vous configurez. Pendant que vous enregistrez une combinaison de touches dans les réglages, Velmora reçoit aussi les touches sur lesquelles vous y appuyez. Rien de ce que vous tapez ou de ce sur quoi vous cliquez n’est conservé.

Ce qui reste sur cet ordinateur
Vos boutons, vos boutons de souris et votre accord sont enregistrés dans votre propre dossier de configuration. Velmora ne collecte rien et n’envoie rien : il n’ouvre lui-même aucune connexion réseau. Les pages web que vos boutons ouvrent s’affichent dans votre navigateur, selon les conditions de celui-ci.

Ce que Velmora fait pour vous
Un clic sur un bouton, ou l’appui sur un bouton de souris configuré, lance une application, ouvre une adresse, exécute une commande ou envoie une combinaison de touches, exactement comme vous l’avez configuré. Les commandes s’exécutent avec vos droits et sans autre confirmation. Ne saisissez que des commandes que vous comprenez et auxquelles vous faites confiance.

Aucune garantie
Velmora est un logiciel libre sous licence MIT. Il est fourni tel quel, sans garantie d’aucune sorte ; vous l’utilisez à vos propres risques.

Si vous acceptez, Velmora démarre aussitôt et ne posera plus la question. Sinon, quittez ici : rien ne sera enregistré.</translation>
    </message>
    <message id="tos.not_stored_format">
        <source></source>
        <translation>Votre réponse ne peut pas être enregistrée ; la question reviendra au prochain démarrage : %1</translation>
    </message>
    <message id="tos.quit">
        <source></source>
        <extracomment>Quit Button</extracomment>
        <translation>Quitter</translation>
    </message>
    <message id="tos.title">
        <source></source>
        <extracomment>Terms of Service Title; Terms of Service</extracomment>
        <translation>Conditions d’utilisation</translation>
    </message>
    <message id="trust_message">
        <source></source>
        <translation>Cette session utilise Wayland, qui ne transmet les touches et les boutons de la souris qu’à l’application au premier plan. La barre et ses boutons fonctionnent ; Option+M (Alt+M), les boutons de souris configurés et l’envoi de combinaisons de touches nécessitent une session X11.

Vous pouvez généralement la choisir sur l’écran de connexion.</translation>
    </message>
    <message id="trust_message_extensions">
        <source></source>
        <translation>Il manque au serveur X : %1. La barre et ses boutons fonctionnent ; Option+M (Alt+M), les boutons de souris configurés et l’envoi de combinaisons de touches en ont besoin.</translation>
    </message>
    <message id="trust_title">
        <source></source>
        <translation>Velmora ne peut pas détecter les touches dans cette session</translation>
    </message>
    <message id="unknown_version">
        <source></source>
        <translation>Version inconnue</translation>
    </message>
    <message id="url_invalid">
        <source></source>
        <translation>Ce n’est pas une adresse. Exemple : https://example.com</translation>
    </message>
    <message id="version_format">
        <source></source>
        <translation>Version %1 (%2)</translation>
    </message>
    <message id="クリア">
        <source></source>
        <translation>Effacer</translation>
    </message>
    <message id="例: ⌘C, ⌥⇧N, ⌃⌘Space">
        <source></source>
        <translation>Par exemple ⌘C, ⌥⇧N, ⌃⌘Space</translation>
    </message>
</context>
</TS>
