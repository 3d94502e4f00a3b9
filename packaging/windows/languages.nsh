; The languages of the hub; Windows' own decides, and English stands in for the rest.
!macro Language name running data windows
    !insertmacro MUI_LANGUAGE "${name}"
    LangString HubIsRunning ${LANG_${name}} "${running}"
    LangString UserData ${LANG_${name}} "${data}"
    LangString NeedsWindows10 ${LANG_${name}} "${windows}"
!macroend

!insertmacro Language English \
    "OrbeHub is running. Close it (tray icon, Exit), then press Retry." \
    "My macros, light works and settings" \
    "OrbeHub needs a 64-bit Windows 10 or later."
!insertmacro Language SimpChinese \
    "OrbeHub 正在运行。请先退出（托盘图标中选择退出），然后点击“重试”。" \
    "我的宏、灯光作品和设置" \
    "OrbeHub 需要 64 位 Windows 10 或更高版本。"
!insertmacro Language TradChinese \
    "OrbeHub 正在執行。請先結束（於系統匣圖示選擇結束），然後按「重試」。" \
    "我的巨集、燈光作品和設定" \
    "OrbeHub 需要 64 位元 Windows 10 或更新版本。"
!insertmacro Language Japanese \
    "OrbeHub が実行中です。トレイアイコンから終了し、「再試行」を押してください。" \
    "マクロ、ライト作品、設定" \
    "OrbeHub には 64 ビット版の Windows 10 以降が必要です。"
!insertmacro Language Korean \
    "OrbeHub가 실행 중입니다. 트레이 아이콘에서 종료한 다음 다시 시도를 누르세요." \
    "내 매크로, 조명 작품 및 설정" \
    "OrbeHub를 사용하려면 64비트 Windows 10 이상이 필요합니다."
!insertmacro Language Russian \
    "OrbeHub запущен. Закройте его (значок в трее, «Выход») и нажмите «Повтор»." \
    "Мои макросы, световые работы и настройки" \
    "Для OrbeHub нужна 64-разрядная Windows 10 или новее."
!insertmacro Language Vietnamese \
    "OrbeHub đang chạy. Hãy thoát chương trình (biểu tượng khay hệ thống) rồi nhấn Thử lại." \
    "Macro, mẫu đèn và cài đặt của tôi" \
    "OrbeHub cần Windows 10 64-bit trở lên."
!insertmacro Language Portuguese \
    "O OrbeHub está em execução. Feche-o (ícone na bandeja, Sair) e prima Repetir." \
    "As minhas macros, obras de luz e definições" \
    "O OrbeHub precisa do Windows 10 de 64 bits ou posterior."
!insertmacro Language Thai \
    "OrbeHub กำลังทำงานอยู่ โปรดปิดโปรแกรม (ไอคอนในถาดระบบ) แล้วกดลองใหม่" \
    "มาโคร ผลงานไฟ และการตั้งค่าของฉัน" \
    "OrbeHub ต้องใช้ Windows 10 แบบ 64 บิตขึ้นไป"
!insertmacro Language German \
    "OrbeHub läuft noch. Bitte beenden (Symbol im Infobereich, Beenden) und dann auf Wiederholen klicken." \
    "Meine Makros, Lichtwerke und Einstellungen" \
    "OrbeHub benötigt ein 64-Bit-Windows 10 oder neuer."
!insertmacro Language French \
    "OrbeHub est en cours d'exécution. Fermez-le (icône de la zone de notification, Quitter), puis cliquez sur Réessayer." \
    "Mes macros, créations lumineuses et paramètres" \
    "OrbeHub nécessite Windows 10 64 bits ou une version ultérieure."
!insertmacro Language Swedish \
    "OrbeHub körs. Avsluta programmet (ikonen i meddelandefältet) och tryck sedan på Försök igen." \
    "Mina makron, ljusverk och inställningar" \
    "OrbeHub kräver 64-bitars Windows 10 eller senare."
!insertmacro Language Italian \
    "OrbeHub è in esecuzione. Chiudilo (icona nell'area di notifica, Esci), poi premi Riprova." \
    "Le mie macro, opere luminose e impostazioni" \
    "OrbeHub richiede Windows 10 a 64 bit o successivo."
!insertmacro Language Turkish \
    "OrbeHub çalışıyor. Kapatın (tepsi simgesi, Çıkış), sonra Yeniden Dene'ye basın." \
    "Makrolarım, ışık çalışmalarım ve ayarlarım" \
    "OrbeHub için 64 bit Windows 10 veya üzeri gerekir."
