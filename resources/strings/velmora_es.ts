<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name></name>
    <message id="Safari">
        <source></source>
        <translation>Safari</translation>
    </message>
    <message id="about_licence">
        <source></source>
        <translation>© 2026 The Velmora developers. Software libre con licencia MIT.</translation>
    </message>
    <message id="about_title">
        <source></source>
        <translation>Acerca de Velmora</translation>
    </message>
    <message id="action_desc_execute">
        <source></source>
        <translation>Ejecutar %1</translation>
    </message>
    <message id="action_desc_key">
        <source></source>
        <translation>Pulsar %1</translation>
    </message>
    <message id="action_desc_launch">
        <source></source>
        <translation>Abrir %1</translation>
    </message>
    <message id="action_desc_open">
        <source></source>
        <translation>Abrir %1</translation>
    </message>
    <message id="action_execute_shell">
        <source></source>
        <translation>Ejecutar comando</translation>
    </message>
    <message id="action_launch_app">
        <source></source>
        <translation>Abrir aplicación</translation>
    </message>
    <message id="action_open_url">
        <source></source>
        <translation>Abrir URL</translation>
    </message>
    <message id="action_press_key">
        <source></source>
        <translation>Pulsar teclas</translation>
    </message>
    <message id="add">
        <source></source>
        <translation>Añadir</translation>
    </message>
    <message id="alert_shell_message">
        <source></source>
        <translation>Velmora lo ejecutará con sus permisos y sin volver a preguntar. Guárdelo solo si sabe lo que hace y confía en él.</translation>
    </message>
    <message id="alert_shell_title">
        <source></source>
        <translation>¿Guardar este comando?</translation>
    </message>
    <message id="bar_keeps_windows_below">
        <source></source>
        <translation>Mantener las ventanas debajo de la barra</translation>
    </message>
    <message id="bar_place">
        <source></source>
        <translation>Posición de la barra</translation>
    </message>
    <message id="bar_place_below_panel">
        <source></source>
        <translation>Debajo del panel del escritorio</translation>
    </message>
    <message id="bar_place_top_edge">
        <source></source>
        <translation>En el borde superior</translation>
    </message>
    <message id="button_cancel">
        <source></source>
        <translation>Cancelar</translation>
    </message>
    <message id="button_close">
        <source></source>
        <translation>Cerrar</translation>
    </message>
    <message id="button_save">
        <source></source>
        <translation>Guardar</translation>
    </message>
    <message id="button_select">
        <source></source>
        <translation>Elegir…</translation>
    </message>
    <message id="delete">
        <source></source>
        <translation>Eliminar</translation>
    </message>
    <message id="edit">
        <source></source>
        <translation>Editar</translation>
    </message>
    <message id="edit_add_format">
        <source></source>
        <translation>Añadir «%1»</translation>
    </message>
    <message id="edit_change_format">
        <source></source>
        <translation>Editar «%1»</translation>
    </message>
    <message id="edit_import">
        <source></source>
        <translation>Importar</translation>
    </message>
    <message id="edit_move_format">
        <source></source>
        <translation>Mover «%1»</translation>
    </message>
    <message id="edit_remove_format">
        <source></source>
        <translation>Eliminar «%1»</translation>
    </message>
    <message id="exchange_export">
        <source></source>
        <translation>Exportar…</translation>
    </message>
    <message id="exchange_export_failed">
        <source></source>
        <translation>No se escribió el archivo.</translation>
    </message>
    <message id="exchange_import">
        <source></source>
        <translation>Importar…</translation>
    </message>
    <message id="exchange_import_failed">
        <source></source>
        <translation>No se importó nada.</translation>
    </message>
    <message id="exchange_title">
        <source></source>
        <translation>Botones y preferencias</translation>
    </message>
    <message id="file_not_regular">
        <source></source>
        <translation>No es un archivo normal</translation>
    </message>
    <message id="grant_held_by_other">
        <source></source>
        <translation>Otro programa lo está usando en este momento.</translation>
    </message>
    <message id="grant_no_such_button">
        <source></source>
        <translation>Aquí ningún ratón tiene ese botón.</translation>
    </message>
    <message id="grant_no_such_key">
        <source></source>
        <translation>Este teclado no tiene esa tecla.</translation>
    </message>
    <message id="grant_not_offered">
        <source></source>
        <translation>Esta sesión no lo ofrece.</translation>
    </message>
    <message id="group_action">
        <source></source>
        <translation>Acción</translation>
    </message>
    <message id="group_basic">
        <source></source>
        <translation>Apariencia</translation>
    </message>
    <message id="hotkey_change">
        <source></source>
        <translation>Cambiar…</translation>
    </message>
    <message id="hotkey_change_name">
        <source></source>
        <translation>Cambiar el atajo de teclado</translation>
    </message>
    <message id="hotkey_hint">
        <source></source>
        <translation>Muestra y oculta la barra en cualquier aplicación.</translation>
    </message>
    <message id="hotkey_recording">
        <source></source>
        <translation>Pulse la nueva combinación. Esc lo deja todo como está.</translation>
    </message>
    <message id="hotkey_refused">
        <source></source>
        <translation>Un atajo necesita Ctrl, Alt o Súper junto con otra tecla.</translation>
    </message>
    <message id="hotkey_reset">
        <source></source>
        <translation>Predeterminado</translation>
    </message>
    <message id="hotkey_reset_name">
        <source></source>
        <translation>Atajo de teclado predeterminado</translation>
    </message>
    <message id="hotkey_title">
        <source></source>
        <translation>Atajo de teclado</translation>
    </message>
    <message id="key_capture_leave">
        <source></source>
        <translation>Tab o Mayús+Tab dos veces: salir sin cambios</translation>
    </message>
    <message id="label_alignment">
        <source></source>
        <translation>Lado</translation>
    </message>
    <message id="label_app">
        <source></source>
        <translation>Aplicación</translation>
    </message>
    <message id="label_command">
        <source></source>
        <translation>Comando</translation>
    </message>
    <message id="label_icon">
        <source></source>
        <translation>Símbolo</translation>
    </message>
    <message id="label_key_combo">
        <source></source>
        <translation>Teclas</translation>
    </message>
    <message id="label_title">
        <source></source>
        <translation>Título</translation>
    </message>
    <message id="label_url">
        <source></source>
        <translation>URL</translation>
    </message>
    <message id="list_empty">
        <source></source>
        <translation>Aún no hay nada. «Añadir» crea el primer elemento.</translation>
    </message>
    <message id="login_failed_format">
        <source></source>
        <translation>No se pudo guardar: %1</translation>
    </message>
    <message id="login_start">
        <source></source>
        <translation>Iniciar al entrar en la sesión</translation>
    </message>
    <message id="login_switched_off">
        <source></source>
        <translation>Está desactivado en los ajustes del escritorio.</translation>
    </message>
    <message id="login_title">
        <source></source>
        <translation>Inicio</translation>
    </message>
    <message id="menu_help">
        <source></source>
        <extracomment>Menu tooltip</extracomment>
        <translation>Menú de Velmora</translation>
    </message>
    <message id="menu_quit">
        <source></source>
        <translation>Salir de Velmora</translation>
    </message>
    <message id="menu_redo_format">
        <source></source>
        <translation>Rehacer: %1</translation>
    </message>
    <message id="menu_settings">
        <source></source>
        <translation>Ajustes…</translation>
    </message>
    <message id="menu_toggle">
        <source></source>
        <translation>Mostrar u ocultar la barra</translation>
    </message>
    <message id="menu_undo_format">
        <source></source>
        <translation>Deshacer: %1</translation>
    </message>
    <message id="mouse_action_label">
        <source></source>
        <translation>Acción</translation>
    </message>
    <message id="mouse_add_title">
        <source></source>
        <translation>Nuevo botón del ratón</translation>
    </message>
    <message id="mouse_btn_4">
        <source></source>
        <translation>Botón 4</translation>
    </message>
    <message id="mouse_btn_5">
        <source></source>
        <translation>Botón 5</translation>
    </message>
    <message id="mouse_btn_6">
        <source></source>
        <translation>Botón 6</translation>
    </message>
    <message id="mouse_btn_7">
        <source></source>
        <translation>Botón 7</translation>
    </message>
    <message id="mouse_btn_8">
        <source></source>
        <translation>Botón 8</translation>
    </message>
    <message id="mouse_btn_9">
        <source></source>
        <translation>Botón 9</translation>
    </message>
    <message id="mouse_btn_label">
        <source></source>
        <translation>Botón</translation>
    </message>
    <message id="mouse_btn_middle">
        <source></source>
        <translation>Botón central</translation>
    </message>
    <message id="mouse_button">
        <source></source>
        <translation>Botón</translation>
    </message>
    <message id="mouse_click_btn4">
        <source></source>
        <translation>Botón 4</translation>
    </message>
    <message id="mouse_click_btn5">
        <source></source>
        <translation>Botón 5</translation>
    </message>
    <message id="mouse_click_btn_format">
        <source></source>
        <translation>Botón %1</translation>
    </message>
    <message id="mouse_click_left">
        <source></source>
        <translation>Botón izquierdo</translation>
    </message>
    <message id="mouse_click_middle">
        <source></source>
        <translation>Botón central</translation>
    </message>
    <message id="mouse_click_right">
        <source></source>
        <translation>Botón derecho</translation>
    </message>
    <message id="mouse_edit_title">
        <source></source>
        <translation>Editar botón del ratón</translation>
    </message>
    <message id="mouse_settings_title">
        <source></source>
        <translation>Acciones de los botones del ratón</translation>
    </message>
    <message id="picker_app_clear">
        <source></source>
        <translation>Borrar búsqueda</translation>
    </message>
    <message id="picker_app_loading">
        <source></source>
        <translation>Buscando aplicaciones…</translation>
    </message>
    <message id="picker_app_no_match">
        <source></source>
        <translation>Ninguna aplicación coincide.</translation>
    </message>
    <message id="picker_app_none">
        <source></source>
        <translation>No se encontró ninguna aplicación.</translation>
    </message>
    <message id="picker_app_search">
        <source></source>
        <translation>Buscar aplicaciones</translation>
    </message>
    <message id="picker_app_show_all">
        <source></source>
        <translation>Mostrar las %1 aplicaciones</translation>
    </message>
    <message id="picker_app_title">
        <source></source>
        <translation>Elegir una aplicación</translation>
    </message>
    <message id="picker_icon_title">
        <source></source>
        <translation>Elegir un símbolo</translation>
    </message>
    <message id="placeholder_app_name">
        <source></source>
        <translation>Nombre de la aplicación</translation>
    </message>
    <message id="placeholder_sf_symbol">
        <source></source>
        <translation>Nombre de un símbolo, como star</translation>
    </message>
    <message id="placeholder_url">
        <source></source>
        <translation>https://example.com</translation>
    </message>
    <message id="restart">
        <source></source>
        <translation>Reiniciar</translation>
    </message>
    <message id="settings_not_stored_format">
        <source></source>
        <translation>Los cambios no se guardan, pero valen hasta que Velmora se cierre: %1</translation>
    </message>
    <message id="settings_tab_general">
        <source></source>
        <translation>General</translation>
    </message>
    <message id="settings_tab_mouse">
        <source></source>
        <translation>Botones del ratón</translation>
    </message>
    <message id="settings_tab_velmora">
        <source></source>
        <translation>Botones de la barra</translation>
    </message>
    <message id="shortcut_add_title">
        <source></source>
        <translation>Nuevo botón</translation>
    </message>
    <message id="shortcut_alignment_left">
        <source></source>
        <translation>Izquierda</translation>
    </message>
    <message id="shortcut_alignment_right">
        <source></source>
        <translation>Derecha</translation>
    </message>
    <message id="shortcut_delete">
        <source></source>
        <translation>Eliminar</translation>
    </message>
    <message id="shortcut_edit">
        <source></source>
        <translation>Editar…</translation>
    </message>
    <message id="shortcut_edit_title">
        <source></source>
        <translation>Editar botón</translation>
    </message>
    <message id="shortcuts_title">
        <source></source>
        <translation>Botones en la barra</translation>
    </message>
    <message id="tos.agree">
        <source></source>
        <extracomment>Agree Button</extracomment>
        <translation>Aceptar</translation>
    </message>
    <message id="tos.content">
        <source></source>
        <extracomment>Terms of Service Content</extracomment>
        <translation>Lea estas líneas antes de usar Velmora.

Qué observa Velmora
Velmora solo recibe de su escritorio dos tipos de entrada: la combinación de teclas Option+M (Alt+M) y las pulsaciones de los botones adicionales del ratón que usted configure. Mientras graba una combinación de teclas en los ajustes, también recibe las teclas que pulsa allí. No registra nada de lo que escribe ni dónde hace clic.

Qué permanece en este equipo
Sus botones, los botones del ratón que configure y su aceptación se guardan en su propia carpeta de configuración. Velmora no recopila ni envía nada: no establece por sí mismo ninguna conexión de red. Las páginas web que abren sus botones se muestran en su navegador, según las condiciones de este.

Qué hace Velmora por usted
Un clic en un botón, o la pulsación de un botón del ratón configurado, abre una aplicación o una URL, ejecuta un comando o envía una combinación de teclas, exactamente como usted lo haya configurado. Los comandos se ejecutan con sus permisos y sin volver a preguntar. Introduzca solo comandos que entienda y en los que confíe.

Sin garantía
Velmora es software libre con licencia MIT. Se ofrece tal cual, sin garantía de ningún tipo; usted lo usa por su cuenta y riesgo.

Si acepta, Velmora se inicia de inmediato y no volverá a preguntar. Si no, salga aquí y no se guardará nada.</translation>
    </message>
    <message id="tos.not_stored_format">
        <source></source>
        <translation>Su respuesta no se puede guardar; se le preguntará de nuevo la próxima vez: %1</translation>
    </message>
    <message id="tos.quit">
        <source></source>
        <extracomment>Quit Button</extracomment>
        <translation>Salir</translation>
    </message>
    <message id="tos.title">
        <source></source>
        <extracomment>Terms of Service Title; Terms of Service</extracomment>
        <translation>Condiciones de uso</translation>
    </message>
    <message id="trust_message">
        <source></source>
        <translation>Esta es una sesión Wayland, en la que solo la aplicación en primer plano recibe las teclas y los botones del ratón. La barra y sus botones funcionan, pero Option+M (Alt+M), los botones del ratón configurados y el envío de combinaciones de teclas necesitan una sesión X11.

Normalmente puede elegirla en la pantalla de inicio de sesión.</translation>
    </message>
    <message id="trust_message_extensions">
        <source></source>
        <translation>Al servidor X le falta: %1. La barra y sus botones funcionan, pero Option+M (Alt+M), los botones del ratón configurados y el envío de combinaciones de teclas lo necesitan.</translation>
    </message>
    <message id="trust_title">
        <source></source>
        <translation>Velmora no puede detectar las teclas en esta sesión</translation>
    </message>
    <message id="unknown_version">
        <source></source>
        <translation>Versión desconocida</translation>
    </message>
    <message id="url_invalid">
        <source></source>
        <translation>Esto no es una dirección. Ejemplo: https://example.com</translation>
    </message>
    <message id="version_format">
        <source></source>
        <translation>Versión %1 (%2)</translation>
    </message>
    <message id="クリア">
        <source></source>
        <translation>Borrar</translation>
    </message>
    <message id="例: ⌘C, ⌥⇧N, ⌃⌘Space">
        <source></source>
        <translation>Por ejemplo ⌘C, ⌥⇧N, ⌃⌘Space</translation>
    </message>
</context>
</TS>
