<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko">
<context>
    <name></name>
    <message id="Safari">
        <source></source>
        <translation>Safari</translation>
    </message>
    <message id="about_licence">
        <source></source>
        <translation>© 2026 The Velmora developers. MIT 라이선스에 따라 배포되는 자유 소프트웨어입니다.</translation>
    </message>
    <message id="about_title">
        <source></source>
        <translation>Velmora 정보</translation>
    </message>
    <message id="action_desc_execute">
        <source></source>
        <translation>%1 실행</translation>
    </message>
    <message id="action_desc_key">
        <source></source>
        <translation>%1 누르기</translation>
    </message>
    <message id="action_desc_launch">
        <source></source>
        <translation>%1 실행</translation>
    </message>
    <message id="action_desc_open">
        <source></source>
        <translation>%1 열기</translation>
    </message>
    <message id="action_execute_shell">
        <source></source>
        <translation>셸 명령 실행</translation>
    </message>
    <message id="action_launch_app">
        <source></source>
        <translation>앱 실행</translation>
    </message>
    <message id="action_open_url">
        <source></source>
        <translation>URL 열기</translation>
    </message>
    <message id="action_press_key">
        <source></source>
        <translation>키 누르기</translation>
    </message>
    <message id="add">
        <source></source>
        <translation>추가</translation>
    </message>
    <message id="alert_shell_message">
        <source></source>
        <translation>Velmora는 이 명령을 사용자 권한으로, 다시 묻지 않고 실행합니다. 내용을 이해하고 신뢰할 수 있는 경우에만 저장하십시오.</translation>
    </message>
    <message id="alert_shell_title">
        <source></source>
        <translation>이 셸 명령을 저장할까요?</translation>
    </message>
    <message id="bar_keeps_windows_below">
        <source></source>
        <translation>창을 바 아래에 두기</translation>
    </message>
    <message id="bar_place">
        <source></source>
        <translation>바 위치</translation>
    </message>
    <message id="bar_place_below_panel">
        <source></source>
        <translation>데스크톱 패널 아래</translation>
    </message>
    <message id="bar_place_top_edge">
        <source></source>
        <translation>화면 맨 위</translation>
    </message>
    <message id="button_cancel">
        <source></source>
        <translation>취소</translation>
    </message>
    <message id="button_close">
        <source></source>
        <translation>닫기</translation>
    </message>
    <message id="button_save">
        <source></source>
        <translation>저장</translation>
    </message>
    <message id="button_select">
        <source></source>
        <translation>선택...</translation>
    </message>
    <message id="delete">
        <source></source>
        <translation>삭제</translation>
    </message>
    <message id="edit">
        <source></source>
        <translation>편집</translation>
    </message>
    <message id="edit_add_format">
        <source></source>
        <translation>‘%1’ 추가</translation>
    </message>
    <message id="edit_change_format">
        <source></source>
        <translation>‘%1’ 편집</translation>
    </message>
    <message id="edit_import">
        <source></source>
        <translation>가져오기</translation>
    </message>
    <message id="edit_move_format">
        <source></source>
        <translation>‘%1’ 이동</translation>
    </message>
    <message id="edit_remove_format">
        <source></source>
        <translation>‘%1’ 삭제</translation>
    </message>
    <message id="exchange_export">
        <source></source>
        <translation>내보내기…</translation>
    </message>
    <message id="exchange_export_failed">
        <source></source>
        <translation>파일을 쓰지 못했습니다.</translation>
    </message>
    <message id="exchange_import">
        <source></source>
        <translation>가져오기…</translation>
    </message>
    <message id="exchange_import_failed">
        <source></source>
        <translation>가져온 것이 없습니다.</translation>
    </message>
    <message id="exchange_title">
        <source></source>
        <translation>버튼과 환경설정</translation>
    </message>
    <message id="file_not_regular">
        <source></source>
        <translation>일반 파일이 아닙니다</translation>
    </message>
    <message id="grant_held_by_other">
        <source></source>
        <translation>지금 다른 프로그램에서 사용 중입니다.</translation>
    </message>
    <message id="grant_no_such_button">
        <source></source>
        <translation>이러한 마우스 버튼은 없습니다.</translation>
    </message>
    <message id="grant_no_such_key">
        <source></source>
        <translation>이 키보드에는 해당 키가 없습니다.</translation>
    </message>
    <message id="grant_not_offered">
        <source></source>
        <translation>이 세션에서는 사용할 수 없습니다.</translation>
    </message>
    <message id="group_action">
        <source></source>
        <translation>동작</translation>
    </message>
    <message id="group_basic">
        <source></source>
        <translation>모양</translation>
    </message>
    <message id="hotkey_change">
        <source></source>
        <translation>변경…</translation>
    </message>
    <message id="hotkey_change_name">
        <source></source>
        <translation>단축키 변경</translation>
    </message>
    <message id="hotkey_hint">
        <source></source>
        <translation>어떤 앱에서든 바를 표시하거나 숨깁니다.</translation>
    </message>
    <message id="hotkey_recording">
        <source></source>
        <translation>새 조합을 누르세요. Esc를 누르면 그대로 둡니다.</translation>
    </message>
    <message id="hotkey_refused">
        <source></source>
        <translation>단축키에는 Ctrl, Alt 또는 Super와 다른 키가 필요합니다.</translation>
    </message>
    <message id="hotkey_reset">
        <source></source>
        <translation>기본값</translation>
    </message>
    <message id="hotkey_reset_name">
        <source></source>
        <translation>기본 단축키</translation>
    </message>
    <message id="hotkey_title">
        <source></source>
        <translation>단축키</translation>
    </message>
    <message id="key_capture_leave">
        <source></source>
        <translation>Tab 또는 Shift+Tab 두 번: 변경 없이 이동</translation>
    </message>
    <message id="label_alignment">
        <source></source>
        <translation>위치</translation>
    </message>
    <message id="label_app">
        <source></source>
        <translation>앱</translation>
    </message>
    <message id="label_command">
        <source></source>
        <translation>명령</translation>
    </message>
    <message id="label_icon">
        <source></source>
        <translation>아이콘</translation>
    </message>
    <message id="label_key_combo">
        <source></source>
        <translation>키</translation>
    </message>
    <message id="label_title">
        <source></source>
        <translation>제목</translation>
    </message>
    <message id="label_url">
        <source></source>
        <translation>URL</translation>
    </message>
    <message id="list_empty">
        <source></source>
        <translation>아직 아무것도 없습니다. ‘추가’를 선택해 첫 항목을 만드세요.</translation>
    </message>
    <message id="login_failed_format">
        <source></source>
        <translation>저장하지 못했습니다: %1</translation>
    </message>
    <message id="login_start">
        <source></source>
        <translation>로그인할 때 시작</translation>
    </message>
    <message id="login_switched_off">
        <source></source>
        <translation>데스크톱 설정에서 꺼져 있습니다.</translation>
    </message>
    <message id="login_title">
        <source></source>
        <translation>시작</translation>
    </message>
    <message id="menu_help">
        <source></source>
        <extracomment>Menu tooltip</extracomment>
        <translation>Velmora 메뉴</translation>
    </message>
    <message id="menu_quit">
        <source></source>
        <translation>Velmora 종료</translation>
    </message>
    <message id="menu_redo_format">
        <source></source>
        <translation>다시 실행: %1</translation>
    </message>
    <message id="menu_settings">
        <source></source>
        <translation>설정...</translation>
    </message>
    <message id="menu_toggle">
        <source></source>
        <translation>바 보이기/숨기기</translation>
    </message>
    <message id="menu_undo_format">
        <source></source>
        <translation>실행 취소: %1</translation>
    </message>
    <message id="mouse_action_label">
        <source></source>
        <translation>동작</translation>
    </message>
    <message id="mouse_add_title">
        <source></source>
        <translation>새 마우스 버튼</translation>
    </message>
    <message id="mouse_btn_4">
        <source></source>
        <translation>버튼 4</translation>
    </message>
    <message id="mouse_btn_5">
        <source></source>
        <translation>버튼 5</translation>
    </message>
    <message id="mouse_btn_6">
        <source></source>
        <translation>버튼 6</translation>
    </message>
    <message id="mouse_btn_7">
        <source></source>
        <translation>버튼 7</translation>
    </message>
    <message id="mouse_btn_8">
        <source></source>
        <translation>버튼 8</translation>
    </message>
    <message id="mouse_btn_9">
        <source></source>
        <translation>버튼 9</translation>
    </message>
    <message id="mouse_btn_label">
        <source></source>
        <translation>마우스 버튼</translation>
    </message>
    <message id="mouse_btn_middle">
        <source></source>
        <translation>가운데 버튼</translation>
    </message>
    <message id="mouse_button">
        <source></source>
        <translation>버튼</translation>
    </message>
    <message id="mouse_click_btn4">
        <source></source>
        <translation>버튼 4</translation>
    </message>
    <message id="mouse_click_btn5">
        <source></source>
        <translation>버튼 5</translation>
    </message>
    <message id="mouse_click_btn_format">
        <source></source>
        <translation>버튼 %1</translation>
    </message>
    <message id="mouse_click_left">
        <source></source>
        <translation>왼쪽 버튼</translation>
    </message>
    <message id="mouse_click_middle">
        <source></source>
        <translation>가운데 버튼</translation>
    </message>
    <message id="mouse_click_right">
        <source></source>
        <translation>오른쪽 버튼</translation>
    </message>
    <message id="mouse_edit_title">
        <source></source>
        <translation>마우스 버튼 편집</translation>
    </message>
    <message id="mouse_settings_title">
        <source></source>
        <translation>마우스 버튼 동작</translation>
    </message>
    <message id="picker_app_clear">
        <source></source>
        <translation>검색 지우기</translation>
    </message>
    <message id="picker_app_loading">
        <source></source>
        <translation>앱을 찾는 중...</translation>
    </message>
    <message id="picker_app_no_match">
        <source></source>
        <translation>일치하는 앱이 없습니다.</translation>
    </message>
    <message id="picker_app_none">
        <source></source>
        <translation>앱을 찾을 수 없습니다.</translation>
    </message>
    <message id="picker_app_search">
        <source></source>
        <translation>앱 검색</translation>
    </message>
    <message id="picker_app_show_all">
        <source></source>
        <translation>앱 %1개 모두 보기</translation>
    </message>
    <message id="picker_app_title">
        <source></source>
        <translation>앱 선택</translation>
    </message>
    <message id="picker_icon_title">
        <source></source>
        <translation>아이콘 선택</translation>
    </message>
    <message id="placeholder_app_name">
        <source></source>
        <translation>앱 이름</translation>
    </message>
    <message id="placeholder_sf_symbol">
        <source></source>
        <translation>아이콘 이름(예: star)</translation>
    </message>
    <message id="placeholder_url">
        <source></source>
        <translation>https://example.com</translation>
    </message>
    <message id="restart">
        <source></source>
        <translation>다시 시작</translation>
    </message>
    <message id="settings_not_stored_format">
        <source></source>
        <translation>변경 사항이 저장되지 않았지만 Velmora를 종료할 때까지 유지됩니다: %1</translation>
    </message>
    <message id="settings_tab_general">
        <source></source>
        <translation>일반</translation>
    </message>
    <message id="settings_tab_mouse">
        <source></source>
        <translation>마우스 버튼</translation>
    </message>
    <message id="settings_tab_velmora">
        <source></source>
        <translation>바 버튼</translation>
    </message>
    <message id="shortcut_add_title">
        <source></source>
        <translation>새 버튼</translation>
    </message>
    <message id="shortcut_alignment_left">
        <source></source>
        <translation>왼쪽</translation>
    </message>
    <message id="shortcut_alignment_right">
        <source></source>
        <translation>오른쪽</translation>
    </message>
    <message id="shortcut_delete">
        <source></source>
        <translation>삭제</translation>
    </message>
    <message id="shortcut_edit">
        <source></source>
        <translation>편집...</translation>
    </message>
    <message id="shortcut_edit_title">
        <source></source>
        <translation>버튼 편집</translation>
    </message>
    <message id="shortcuts_title">
        <source></source>
        <translation>바에 표시할 버튼</translation>
    </message>
    <message id="tos.agree">
        <source></source>
        <extracomment>Agree Button</extracomment>
        <translation>동의</translation>
    </message>
    <message id="tos.content">
        <source></source>
        <extracomment>Terms of Service Content</extracomment>
        <translation>Velmora를 사용하기 전에 다음 내용을 읽어 주십시오.

Velmora가 감지하는 것
Velmora가 받는 입력은 두 가지뿐입니다. Option+M(Alt+M) 키 조합과 사용자가 지정한 추가 마우스 버튼입니다. 설정에서 키 조합을 등록하는 동안에는 그때 누른 키도 받습니다. 입력하거나 클릭한 내용은 기록하지 않습니다.

이 컴퓨터에 남는 것
버튼, 마우스 버튼 설정, 동의 여부는 사용자의 설정 폴더에 저장됩니다. Velmora는 아무것도 수집하거나 전송하지 않으며, 스스로 네트워크에 연결하지 않습니다. 버튼으로 여는 웹 페이지는 사용자의 브라우저에서 열리며 해당 브라우저의 약관이 적용됩니다.

Velmora가 대신 하는 일
버튼을 클릭하거나 지정한 마우스 버튼을 누르면, 설정한 그대로 앱을 실행하거나 URL을 열거나 셸 명령을 실행하거나 키 조합을 입력합니다. 셸 명령은 사용자 권한으로, 다시 묻지 않고 실행됩니다. 내용을 이해하고 신뢰할 수 있는 명령만 입력하십시오.

보증 없음
Velmora는 MIT 라이선스를 따르는 자유 소프트웨어입니다. 어떠한 보증도 없이 있는 그대로 제공되며, 사용에 따른 책임은 사용자에게 있습니다.

동의하면 Velmora가 바로 시작되며 다시 묻지 않습니다. 동의하지 않으면 여기에서 종료하십시오. 아무것도 저장되지 않습니다.</translation>
    </message>
    <message id="tos.not_stored_format">
        <source></source>
        <translation>답변을 저장할 수 없어 다음 시작 때 다시 묻습니다: %1</translation>
    </message>
    <message id="tos.quit">
        <source></source>
        <extracomment>Quit Button</extracomment>
        <translation>종료</translation>
    </message>
    <message id="tos.title">
        <source></source>
        <extracomment>Terms of Service Title; Terms of Service</extracomment>
        <translation>이용 약관</translation>
    </message>
    <message id="trust_message">
        <source></source>
        <translation>현재 Wayland 세션입니다. Wayland는 키와 마우스 버튼을 맨 앞의 앱에만 전달합니다. 바와 버튼은 사용할 수 있지만 Option+M(Alt+M), 지정한 마우스 버튼, 키 조합 입력에는 X11 세션이 필요합니다.

보통 로그인 화면에서 X11 세션을 선택할 수 있습니다.</translation>
    </message>
    <message id="trust_message_extensions">
        <source></source>
        <translation>X 서버에 다음 기능이 없습니다: %1. 바와 버튼은 사용할 수 있지만 Option+M(Alt+M), 지정한 마우스 버튼, 키 조합 입력에는 이 기능이 필요합니다.</translation>
    </message>
    <message id="trust_title">
        <source></source>
        <translation>이 세션에서는 Velmora가 키 입력을 감지할 수 없습니다</translation>
    </message>
    <message id="unknown_version">
        <source></source>
        <translation>알 수 없는 버전</translation>
    </message>
    <message id="url_invalid">
        <source></source>
        <translation>주소가 아닙니다. 예: https://example.com</translation>
    </message>
    <message id="version_format">
        <source></source>
        <translation>버전 %1(%2)</translation>
    </message>
    <message id="クリア">
        <source></source>
        <translation>지우기</translation>
    </message>
    <message id="例: ⌘C, ⌥⇧N, ⌃⌘Space">
        <source></source>
        <translation>예: ⌘C, ⌥⇧N, ⌃⌘Space</translation>
    </message>
</context>
</TS>
