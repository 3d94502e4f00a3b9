<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="zh_CN">
<context>
    <name>ColorSlider</name>
    <message>
        <source>色相</source>
        <translation>Farbton</translation>
    </message>
</context>
<context>
    <name>CommandRows</name>
    <message>
        <source>命令,数据长度,Byte0
命令号(Hex),Byte1
Effect,Byte2
Speed,Byte3
Brightness,Byte4
Option,Byte5
R,Byte6
G,Byte7
B</source>
        <translation>Befehl,Datenlänge,Byte0
Befehlsnr. (Hex),Byte1
Effect,Byte2
Speed,Byte3
Brightness,Byte4
Option,Byte5
R,Byte6
G,Byte7
B</translation>
    </message>
</context>
<context>
    <name>CustomTabBar</name>
    <message>
        <source>选项卡</source>
        <translation>Registerkarten</translation>
    </message>
</context>
<context>
    <name>CustumSlider</name>
    <message>
        <source>滑块</source>
        <translation>Schieberegler</translation>
    </message>
</context>
<context>
    <name>DeadZonePage</name>
    <message>
        <source>死区设置</source>
        <translation>Totzonen</translation>
    </message>
    <message>
        <source>按键死区设定</source>
        <translation>Totzonen der Tasten</translation>
    </message>
    <message>
        <source>触底到抬起前的距离俗称“死区”。死区可减少磁轴因环境干扰带来的断触问题，磁轴的底部可自定义，您可根据个人需求自定义死区，设定之后，此段行程不会触发。</source>
        <translation>Der Weg vom Anschlag bis zum Anheben heißt „Totzone“. Sie verhindert, dass Störungen den Magnet-Switch aussetzen lassen. Stell sie nach Bedarf ein; in diesem Bereich wird nichts ausgelöst.</translation>
    </message>
    <message>
        <source>设置</source>
        <translation>Anwenden</translation>
    </message>
    <message>
        <source>顶部死区</source>
        <translation>Obere Totzone</translation>
    </message>
    <message>
        <source>底部死区</source>
        <translation>Untere Totzone</translation>
    </message>
    <message>
        <source>按键顶部不触发的距离，可防误触</source>
        <translation>Weg oben, der nichts bewirkt; gegen versehentliche Anschläge</translation>
    </message>
    <message>
        <source>按键底部不响应的距离，可防抖动</source>
        <translation>Weg unten, der nichts bewirkt; gegen Flattern einer gehaltenen Taste</translation>
    </message>
</context>
<context>
    <name>DemoBoard</name>
    <message>
        <source>没有插入键盘</source>
        <translation>Keine Tastatur angeschlossen</translation>
    </message>
    <message>
        <source>虚拟键盘的灯光</source>
        <translation>Beleuchtung der virtuellen Tastatur</translation>
    </message>
    <message>
        <source>虚拟键盘</source>
        <translation>Virtuelle Tastatur</translation>
    </message>
    <message>
        <source>单击按键即可按下它，部分灯效会作出反应。</source>
        <translation>Zum Drücken auf eine Taste klicken; manche Effekte reagieren darauf.</translation>
    </message>
    <message>
        <source>灯光已关闭</source>
        <translation>Beleuchtung aus</translation>
    </message>
    <message>
        <source>%1 · 亮度 %2% · 速度 %3%</source>
        <translation>%1 · Helligkeit %2% · Tempo %3%</translation>
    </message>
</context>
<context>
    <name>DemoDesk</name>
    <message>
        <source>虚拟设备</source>
        <translation>Virtuelle Geräte</translation>
    </message>
    <message>
        <source>插入或拔出虚拟设备：</source>
        <translation>Virtuelle Geräte an- oder abstecken:</translation>
    </message>
    <message>
        <source>依次按下所有按键</source>
        <translation>Alle Tasten nacheinander drücken</translation>
    </message>
    <message>
        <source>显示键盘的灯光</source>
        <translation>Beleuchtung der Tastatur zeigen</translation>
    </message>
</context>
<context>
    <name>DeviceOptionsPanel</name>
    <message>
        <source>键盘回报率</source>
        <translation>Polling-Rate</translation>
    </message>
    <message>
        <source>2.4G关闭背光</source>
        <translation>2.4G: Licht aus</translation>
    </message>
    <message>
        <source>蓝牙关闭背光</source>
        <translation>Bluetooth: Licht aus</translation>
    </message>
    <message>
        <source>2.4G深度睡眠时间</source>
        <translation>2.4G-Tiefschlafzeit</translation>
    </message>
    <message>
        <source>分钟</source>
        <translation>min</translation>
    </message>
    <message>
        <source>蓝牙深度睡眠时间</source>
        <translation>Bluetooth-Tiefschlafzeit</translation>
    </message>
    <message>
        <source>按键防抖等级设置</source>
        <translation>Entprellstufe</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>键盘每秒向电脑报告的次数，越高延迟越低</source>
        <translation>Wie oft pro Sekunde die Tastatur an den Computer meldet; je höher, desto weniger Latenz</translation>
    </message>
    <message>
        <source>不按键多久后关闭背光</source>
        <translation>Zeit ohne Tastendruck, bis die Beleuchtung ausgeht</translation>
    </message>
    <message>
        <source>不按键多久后进入深度睡眠，可省电</source>
        <translation>Zeit ohne Tastendruck, bis die Tastatur in den Tiefschlaf geht; das spart Akku</translation>
    </message>
    <message>
        <source>级别越高越能避免连击，但会增加延迟</source>
        <translation>Eine höhere Stufe verhindert Doppelanschläge besser, erhöht aber die Latenz</translation>
    </message>
</context>
<context>
    <name>DeviceTrouble</name>
    <message>
        <source>系统不允许访问此键盘。请将 70-orbehub.rules 复制到 /etc/udev/rules.d，然后重新插拔键盘。</source>
        <translation>Das System erlaubt keinen Zugriff auf diese Tastatur. Kopiere 70-orbehub.rules nach /etc/udev/rules.d und schließ die Tastatur neu an.</translation>
    </message>
    <message>
        <source>系统不允许访问此键盘。请检查您的用户权限，然后重新插拔键盘。</source>
        <translation>Das System erlaubt keinen Zugriff auf diese Tastatur. Prüfe deine Benutzerrechte und schließ die Tastatur neu an.</translation>
    </message>
    <message>
        <source>已断开</source>
        <translation>Getrennt</translation>
    </message>
    <message>
        <source>键盘已断开，重新连接后即可使用。</source>
        <translation>Die Tastatur ist getrennt. Schließ sie wieder an, um sie zu benutzen.</translation>
    </message>
    <message>
        <source>没有响应</source>
        <translation>Antwortet nicht</translation>
    </message>
    <message>
        <source>键盘没有响应，可能处于休眠状态，请按任意键唤醒。</source>
        <translation>Die Tastatur antwortet nicht. Vielleicht schläft sie: Drücke eine Taste, um sie zu wecken.</translation>
    </message>
    <message>
        <source>没有访问权限</source>
        <translation>Kein Zugriff</translation>
    </message>
    <message>
        <source>无法打开</source>
        <translation>Nicht zu öffnen</translation>
    </message>
    <message>
        <source>无法打开键盘，可能正被其他程序占用。请关闭该程序后重新插拔键盘。</source>
        <translation>Die Tastatur lässt sich nicht öffnen. Vielleicht belegt sie ein anderes Programm: Beende es und schließ die Tastatur neu an.</translation>
    </message>
    <message>
        <source>键盘</source>
        <translation>Tastatur</translation>
    </message>
</context>
<context>
    <name>DialogColorPicker</name>
    <message>
        <source>取色器</source>
        <translation>Farbwähler</translation>
    </message>
    <message>
        <source>按住并拖到屏幕上的任意位置取色</source>
        <translation>Halten und an eine beliebige Stelle des Bildschirms ziehen, um eine Farbe aufzunehmen</translation>
    </message>
    <message>
        <source>完成</source>
        <translation>Fertig</translation>
    </message>
</context>
<context>
    <name>DialogDeviceConnect</name>
    <message>
        <source>Orbe Studio 设备调试</source>
        <translation>Orbe Studio Gerätediagnose</translation>
    </message>
    <message>
        <source>命令目录</source>
        <translation>Befehlsverzeichnis</translation>
    </message>
</context>
<context>
    <name>DialogFNPicker</name>
    <message>
        <source>组合键</source>
        <translation>Tastenkombination</translation>
    </message>
    <message>
        <source>基本字符</source>
        <translation>Grundtasten</translation>
    </message>
    <message>
        <source>拓展字符(按键)</source>
        <translation>Zusatztasten</translation>
    </message>
    <message>
        <source>宏设置</source>
        <translation>Makros</translation>
    </message>
    <message>
        <source>播放方式:</source>
        <translation>Wiedergabemodus:</translation>
    </message>
    <message>
        <source>循环次数</source>
        <translation>Wiederholungen</translation>
    </message>
    <message>
        <source>自动</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>按下</source>
        <translation>Drücken</translation>
    </message>
    <message>
        <source>系统功能</source>
        <translation>Systemfunktionen</translation>
    </message>
    <message>
        <source>鼠标功能</source>
        <translation>Mausfunktionen</translation>
    </message>
    <message>
        <source>设置功能为:</source>
        <translation>Funktion festlegen:</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>左键</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>右键</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>中键</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>前移</source>
        <translation>Vorwärts</translation>
    </message>
    <message>
        <source>后移</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>左滚</source>
        <translation>Rad links</translation>
    </message>
    <message>
        <source>右滚</source>
        <translation>Rad rechts</translation>
    </message>
    <message>
        <source>上滚</source>
        <translation>Rad hoch</translation>
    </message>
    <message>
        <source>下滚</source>
        <translation>Rad runter</translation>
    </message>
    <message>
        <source>向上滚屏</source>
        <translation>Nach oben scrollen</translation>
    </message>
    <message>
        <source>向下滚屏</source>
        <translation>Nach unten scrollen</translation>
    </message>
    <message>
        <source>自定义按键</source>
        <translation>Eigene Tastenbelegung</translation>
    </message>
    <message>
        <source>宏</source>
        <translation>Makro </translation>
    </message>
    <message>
        <source>未录制的宏</source>
        <translation>Makro nicht aufgenommen</translation>
    </message>
</context>
<context>
    <name>DialogVKPicker</name>
    <message>
        <source>基本字符</source>
        <translation>Grundtasten</translation>
    </message>
    <message>
        <source>拓展字符</source>
        <translation>Zusatztasten</translation>
    </message>
    <message>
        <source>组合键：</source>
        <translation>Tastenkombination:</translation>
    </message>
    <message>
        <source>确认</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>组合键</source>
        <translation>Tastenkombination</translation>
    </message>
</context>
<context>
    <name>FrameAbout</name>
    <message>
        <source>关于</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>设备名称：Orbe 7090</source>
        <translation>Gerätename: Orbe 7090</translation>
    </message>
    <message>
        <source>键盘固件版本：V1.0</source>
        <translation>Tastatur-Firmware: V1.0</translation>
    </message>
    <message>
        <source>无线连接器固件版本：V1.0</source>
        <translation>Empfänger-Firmware: V1.0</translation>
    </message>
    <message>
        <source>当前版本：V1.0</source>
        <translation>Aktuelle Version: V1.0</translation>
    </message>
    <message>
        <source>检查键盘固件更新</source>
        <translation>Tastatur-Firmware prüfen</translation>
    </message>
    <message>
        <source>检查无线连接器固件更新</source>
        <translation>Empfänger-Firmware prüfen</translation>
    </message>
    <message>
        <source>操作教学</source>
        <translation>Anleitungen</translation>
    </message>
    <message>
        <source>关于Orbe</source>
        <translation>Über Orbe</translation>
    </message>
</context>
<context>
    <name>FrameDeviceHolder</name>
    <message>
        <source>首页</source>
        <translation>Startseite</translation>
    </message>
    <message>
        <source>键盘设置</source>
        <translation>Tasteneinstellungen</translation>
    </message>
    <message>
        <source>磁轴设置</source>
        <translation>Magnet-Switches</translation>
    </message>
    <message>
        <source>宏设置</source>
        <translation>Makros</translation>
    </message>
    <message>
        <source>灯效设置</source>
        <translation>Beleuchtungseinstellungen</translation>
    </message>
    <message>
        <source>关于</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>用户</source>
        <translation>Benutzer</translation>
    </message>
    <message>
        <source>返回</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>板载 1</source>
        <translation>Profil 1</translation>
    </message>
    <message>
        <source>板载 2</source>
        <translation>Profil 2</translation>
    </message>
    <message>
        <source>板载 3</source>
        <translation>Profil 3</translation>
    </message>
    <message>
        <source>板载 4</source>
        <translation>Profil 4</translation>
    </message>
    <message>
        <source>对码</source>
        <translation>Koppeln</translation>
    </message>
    <message>
        <source>恢复默认</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>行程校准</source>
        <translation>Kalibrierung</translation>
    </message>
    <message>
        <source>灯光设置</source>
        <translation>Lichteinstellungen</translation>
    </message>
</context>
<context>
    <name>FrameDeviceShow</name>
    <message>
        <source>剩余电量</source>
        <translation>Akkustand</translation>
    </message>
</context>
<context>
    <name>FrameKeySetting</name>
    <message>
        <source>自定义</source>
        <translation>Eigene</translation>
    </message>
    <message>
        <source>高级键</source>
        <translation>Erweitert</translation>
    </message>
    <message>
        <source>其他设置</source>
        <translation>Weiteres</translation>
    </message>
    <message>
        <source>Fn层设置</source>
        <translation>Fn-Ebene</translation>
    </message>
    <message>
        <source>自定义/Fn层设置</source>
        <translation>Eigene Belegung / Fn-Ebene</translation>
    </message>
    <message>
        <source>*首先点击选择上方按键，在弹出的对话框中可选择组合键、宏设置、系统功能、鼠标功能进行改建设置</source>
        <translation>*Klick zuerst oben auf eine Taste und wähle dann im Dialog eine Kombination, ein Makro, eine System- oder eine Mausfunktion</translation>
    </message>
    <message>
        <source>*右键点击按键可清除设置、禁用按键或取消禁用</source>
        <translation>*Rechtsklick auf eine Taste löscht ihre Einstellung, deaktiviert sie oder aktiviert sie wieder</translation>
    </message>
    <message>
        <source>动态键程(DKS)</source>
        <translation>Dynamic Keystroke (DKS)</translation>
    </message>
    <message>
        <source>按住/单击(MT)</source>
        <translation>Mod-Tap (MT)</translation>
    </message>
    <message>
        <source>切换开关(TGL)</source>
        <translation>Toggle (TGL)</translation>
    </message>
    <message>
        <source>Fn层按键设置</source>
        <translation>Tasten der Fn-Ebene</translation>
    </message>
    <message>
        <source>自定义按键</source>
        <translation>Eigene Tastenbelegung</translation>
    </message>
</context>
<context>
    <name>FrameLight</name>
    <message>
        <source>点击按键上色，拖动可给多个按键上色</source>
        <translation>Taste anklicken, um sie einzufärben, oder über mehrere ziehen</translation>
    </message>
    <message>
        <source>我的作品</source>
        <translation>Meine Designs</translation>
    </message>
    <message>
        <source>颜色:</source>
        <translation>Farbe:</translation>
    </message>
    <message>
        <source>取色器：</source>
        <translation>Farbwähler:</translation>
    </message>
    <message>
        <source>随机颜色：</source>
        <translation>Zufallsfarbe:</translation>
    </message>
    <message>
        <source>清除设置</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>写入层(图):</source>
        <translation>In Ebene schreiben:</translation>
    </message>
    <message>
        <source>图1</source>
        <translation>Bild 1</translation>
    </message>
    <message>
        <source>图2</source>
        <translation>Bild 2</translation>
    </message>
    <message>
        <source>图3</source>
        <translation>Bild 3</translation>
    </message>
    <message>
        <source>图4</source>
        <translation>Bild 4</translation>
    </message>
    <message>
        <source>图5</source>
        <translation>Bild 5</translation>
    </message>
    <message>
        <source>读取层(图):</source>
        <translation>Aus Ebene lesen:</translation>
    </message>
    <message>
        <source>作品名称:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>更新</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>还没有作品，给按键上色后点击“保存”</source>
        <translation>Noch keine Designs. Färbe Tasten ein und drücke „Speichern“</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>确认要删除此作品吗？</source>
        <translation>Dieses Design löschen?</translation>
    </message>
    <message>
        <source>我的作品%1</source>
        <translation>Mein Design %1</translation>
    </message>
    <message>
        <source>作品已保存</source>
        <translation>Design gespeichert</translation>
    </message>
    <message>
        <source>把现在的颜色写入键盘的这一层</source>
        <translation>Speichert die gezeigten Farben in dieser Ebene der Tastatur</translation>
    </message>
    <message>
        <source>显示键盘这一层里的颜色</source>
        <translation>Zeigt die Farben, die die Tastatur in dieser Ebene hat</translation>
    </message>
</context>
<context>
    <name>FrameMacro</name>
    <message>
        <source>宏设置</source>
        <translation>Makros</translation>
    </message>
    <message>
        <source>抬起</source>
        <translation>Loslassen</translation>
    </message>
    <message>
        <source>按下</source>
        <translation>Drücken</translation>
    </message>
    <message>
        <source>延迟</source>
        <translation>Verzögerung</translation>
    </message>
    <message>
        <source>开始录制</source>
        <translation>Aufnahme starten</translation>
    </message>
    <message>
        <source>插入</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>清空</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>设置固定延迟(ms):</source>
        <translation>Feste Verzögerung (ms):</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>新建宏</source>
        <translation>Neues Makro</translation>
    </message>
    <message>
        <source>停止录制</source>
        <translation>Aufnahme beenden</translation>
    </message>
    <message>
        <source>点击“开始录制”后按下按键，或点击“插入”添加事件</source>
        <translation>Klicke auf „Aufnahme starten“ und drücke Tasten, oder füge mit „Einfügen“ ein Ereignis hinzu</translation>
    </message>
    <message>
        <source>请在左侧选择一个宏</source>
        <translation>Wähle links ein Makro</translation>
    </message>
    <message>
        <source>占用</source>
        <translation>Belegt</translation>
    </message>
    <message>
        <source>字节</source>
        <translation>Bytes</translation>
    </message>
    <message>
        <source>录制键盘和鼠标按键，再次点击结束</source>
        <translation>Zeichnet Tasten und Maustasten auf, bis erneut gedrückt wird</translation>
    </message>
    <message>
        <source>把所有延迟都设为右侧的值</source>
        <translation>Setzt jede Verzögerung auf die Zahl rechts</translation>
    </message>
</context>
<context>
    <name>FrameMagic</name>
    <message>
        <source>行程设置</source>
        <translation>Auslösepunkt</translation>
    </message>
    <message>
        <source>死区设置</source>
        <translation>Totzonen</translation>
    </message>
    <message>
        <source>轴体设置</source>
        <translation>Switch-Typ</translation>
    </message>
    <message>
        <source>增稳算法</source>
        <translation>Stabilisierung</translation>
    </message>
    <message>
        <source>模拟测试</source>
        <translation>Test</translation>
    </message>
    <message>
        <source>已选中按键的数量</source>
        <translation>Ausgewählte Tasten</translation>
    </message>
    <message>
        <source>高特</source>
        <translation>Outemu</translation>
    </message>
    <message>
        <source>磁玉</source>
        <translation>Magnetic Jade</translation>
    </message>
    <message>
        <source>磁玉pro</source>
        <translation>Magnetic Jade Pro</translation>
    </message>
    <message>
        <source>磁玉gaming</source>
        <translation>Magnetic Jade Gaming</translation>
    </message>
    <message>
        <source>天王</source>
        <translation>Heavenly King</translation>
    </message>
    <message>
        <source>万磁王</source>
        <translation>King of Magnets</translation>
    </message>
    <message>
        <source>机械轴</source>
        <translation>Mechanischer Switch</translation>
    </message>
    <message>
        <source>凯华轴</source>
        <translation>Kailh-Switch</translation>
    </message>
    <message>
        <source>星引力</source>
        <translation>Star Gravity</translation>
    </message>
    <message>
        <source>炫光</source>
        <translation>Dazzle</translation>
    </message>
    <message>
        <source>闪电</source>
        <translation>Lightning</translation>
    </message>
    <message>
        <source>星耀</source>
        <translation>Star Shine</translation>
    </message>
    <message>
        <source>矮磁轴</source>
        <extracomment>冠泰轴</extracomment>
        <translation>Flacher Magnet-Switch</translation>
    </message>
    <message>
        <source>星芒磁轴</source>
        <translation>Starburst</translation>
    </message>
    <message>
        <source>白泽轴</source>
        <translation>Baize-Switch</translation>
    </message>
    <message>
        <source>自定义</source>
        <translation>Eigene</translation>
    </message>
</context>
<context>
    <name>FrameMain</name>
    <message>
        <source>键程设置(全局)</source>
        <translation>Auslösepunkt (global)</translation>
    </message>
</context>
<context>
    <name>FrameSystemInfo</name>
    <message>
        <source>系统设置</source>
        <translation>Systemeinstellungen</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>开机时自动开启本程序</source>
        <translation>Programm beim Systemstart starten</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>HubTray</name>
    <message>
        <source>显示窗口</source>
        <translation>Fenster anzeigen</translation>
    </message>
    <message>
        <source>隐藏窗口</source>
        <translation>Fenster ausblenden</translation>
    </message>
    <message>
        <source>退出程序</source>
        <translation>Beenden</translation>
    </message>
</context>
<context>
    <name>KeyBubble</name>
    <message>
        <source>系统按键</source>
        <translation>Systemtaste</translation>
    </message>
    <message>
        <source>动态键程</source>
        <translation>Dynamic Keystroke</translation>
    </message>
    <message>
        <source>按住单击</source>
        <translation>Mod-Tap</translation>
    </message>
    <message>
        <source>切换开关</source>
        <translation>Toggle</translation>
    </message>
    <message>
        <source>宏设置</source>
        <translation>Makros</translation>
    </message>
</context>
<context>
    <name>KeyTestPage</name>
    <message>
        <source>行程测试</source>
        <translation>Hubtest</translation>
    </message>
    <message>
        <source>按键测试</source>
        <translation>Tastentest</translation>
    </message>
    <message>
        <source>输入值</source>
        <translation>Eingabe</translation>
    </message>
    <message>
        <source>按下任意按键。无线连接下没有实时行程数据。</source>
        <translation>Drücke eine beliebige Taste. Über Funk gibt es keine Live-Daten zum Tastenhub.</translation>
    </message>
</context>
<context>
    <name>LightWorksModel</name>
    <message>
        <source>删除</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>预览图,作品名称,管理</source>
        <translation>Vorschau,Name,Aktion</translation>
    </message>
</context>
<context>
    <name>LinearFixing1</name>
    <message>
        <source>行程校准操作指南</source>
        <translation>Anleitung zur Kalibrierung</translation>
    </message>
    <message>
        <source>请依次将每个按键轻按到底并停留至少1秒钟，直到按键变为橙色（表示该按键校准成功），请勿遗漏，可重复按按键。无线下不支持按键校准个数提示。校准过程中请勿拔出数据线。</source>
        <translation>Drücke nacheinander jede Taste sanft bis zum Anschlag und halte sie mindestens 1 Sekunde, bis sie orange wird (Taste kalibriert). Lass keine aus; Tasten dürfen erneut gedrückt werden. Über Funk wird die Zahl der kalibrierten Tasten nicht angezeigt. Zieh während der Kalibrierung das Kabel nicht ab.</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>开始校准</source>
        <translation>Kalibrierung starten</translation>
    </message>
</context>
<context>
    <name>LinearFixing2</name>
    <message>
        <source>行程校准</source>
        <translation>Kalibrierung</translation>
    </message>
    <message>
        <source>请依次将每个按键轻按到底并停留至少1秒钟，直到按键变为橙色（表示该按键校准成功），请勿遗漏，可重复按按键。无线下不支持按键校准个数提示。校准过程中请勿拔出数据线。</source>
        <translation>Drücke nacheinander jede Taste sanft bis zum Anschlag und halte sie mindestens 1 Sekunde, bis sie orange wird (Taste kalibriert). Lass keine aus; Tasten dürfen erneut gedrückt werden. Über Funk wird die Zahl der kalibrierten Tasten nicht angezeigt. Zieh während der Kalibrierung das Kabel nicht ab.</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>完成校准</source>
        <translation>Kalibrierung beenden</translation>
    </message>
</context>
<context>
    <name>MacroItem</name>
    <message>
        <source>重命名</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Löschen</translation>
    </message>
</context>
<context>
    <name>MacroSquare</name>
    <message>
        <source>插入</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>延迟</source>
        <translation>Verzögerung</translation>
    </message>
    <message>
        <source>左键</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>右键</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>中键</source>
        <translation>Mitte</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>语言</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>系统设置</source>
        <translation>Systemeinstellungen</translation>
    </message>
    <message>
        <source>最小化</source>
        <translation>Minimieren</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>搜索设备</source>
        <translation>Geräte suchen</translation>
    </message>
    <message>
        <source>我的设备</source>
        <translation>Meine Geräte </translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>确定要退出 ORBE 驱动程序？</source>
        <translation>ORBE-Treiber wirklich beenden?</translation>
    </message>
    <message>
        <source>正在搜索设备</source>
        <translation>Geräte werden gesucht</translation>
    </message>
    <message>
        <source>向左滚动</source>
        <translation>Nach links blättern</translation>
    </message>
    <message>
        <source>向右滚动</source>
        <translation>Nach rechts blättern</translation>
    </message>
    <message>
        <source>返回</source>
        <translation>Zurück</translation>
    </message>
</context>
<context>
    <name>MessageBox</name>
    <message>
        <source>是</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>否</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>ModuleAddMacroSquare</name>
    <message>
        <source>请选择添加宏事件类型</source>
        <translation>Art des Makroereignisses wählen</translation>
    </message>
    <message>
        <source>键盘按键</source>
        <translation>Taste</translation>
    </message>
    <message>
        <source>请按下按键......</source>
        <translation>Taste drücken …</translation>
    </message>
    <message>
        <source>鼠标按键</source>
        <translation>Maustaste</translation>
    </message>
    <message>
        <source>左键</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>中键</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>右键</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>鼠标位置</source>
        <translation>Mausposition</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>ModuleDKSAdjust</name>
    <message>
        <source>按下(mm)</source>
        <translation>Drücken (mm)</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Speichern</translation>
    </message>
</context>
<context>
    <name>ModuleDKSItem</name>
    <message>
        <source>按下触发</source>
        <translation>Über Auslösepunkt gedrückt</translation>
    </message>
    <message>
        <source>按到底部</source>
        <translation>Ganz durchgedrückt</translation>
    </message>
    <message>
        <source>离开底部</source>
        <translation>Vom Boden gelöst</translation>
    </message>
    <message>
        <source>回到顶部</source>
        <translation>Wieder oben</translation>
    </message>
    <message>
        <source>未设置功能</source>
        <translation>Keine Funktion</translation>
    </message>
    <message>
        <source>已开启</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Aus</translation>
    </message>
</context>
<context>
    <name>ModuleDKSTab</name>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>按下触发</source>
        <translation>Über Auslösepunkt gedrückt</translation>
    </message>
    <message>
        <source>按到底部</source>
        <translation>Ganz durchgedrückt</translation>
    </message>
    <message>
        <source>离开底部</source>
        <translation>Vom Boden gelöst</translation>
    </message>
    <message>
        <source>回到顶部</source>
        <translation>Wieder oben</translation>
    </message>
</context>
<context>
    <name>ModuleEfColor</name>
    <message>
        <source>系统默认</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>自定义</source>
        <translation>Eigene</translation>
    </message>
    <message>
        <source>单键</source>
        <translation>Einzeltaste</translation>
    </message>
    <message>
        <source>灯带灯效设置</source>
        <translation>Lichtleiste</translation>
    </message>
    <message>
        <source>灯效：</source>
        <translation>Effekt:</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>常亮</source>
        <translation>Statisch</translation>
    </message>
    <message>
        <source>呼吸</source>
        <translation>Atmend</translation>
    </message>
    <message>
        <source>川流不息</source>
        <translation>Fließend</translation>
    </message>
    <message>
        <source>霓虹</source>
        <translation>Neon</translation>
    </message>
    <message>
        <source>光波</source>
        <translation>Lichtwelle</translation>
    </message>
    <message>
        <source>色彩：</source>
        <translation>Farbe:</translation>
    </message>
    <message>
        <source>炫彩</source>
        <translation>RGB</translation>
    </message>
    <message>
        <source>亮度：</source>
        <translation>Helligkeit:</translation>
    </message>
    <message>
        <source>速度：</source>
        <translation>Tempo:</translation>
    </message>
    <message>
        <source>颜色%1</source>
        <translation>Farbe %1</translation>
    </message>
    <message>
        <source>取色器</source>
        <translation>Farbwähler</translation>
    </message>
</context>
<context>
    <name>ModuleEfLumi</name>
    <message>
        <source>灯光亮度</source>
        <translation>Helligkeit</translation>
    </message>
</context>
<context>
    <name>ModuleEfMode</name>
    <message>
        <source>灯效模式</source>
        <translation>Lichtmodus</translation>
    </message>
    <message>
        <source>关灯</source>
        <translation>Licht aus</translation>
    </message>
    <message>
        <source>灯光播放模式:</source>
        <translation>Ablaufmodus:</translation>
    </message>
    <message>
        <source>常亮</source>
        <translation>Statisch</translation>
    </message>
    <message>
        <source>呼吸</source>
        <translation>Atmend</translation>
    </message>
    <message>
        <source>流星</source>
        <translation>Meteor</translation>
    </message>
    <message>
        <source>涟漪</source>
        <translation>Wellenringe</translation>
    </message>
    <message>
        <source>极光</source>
        <translation>Polarlicht</translation>
    </message>
    <message>
        <source>雨滴</source>
        <translation>Regentropfen</translation>
    </message>
    <message>
        <source>聚合</source>
        <translation>Bündelung</translation>
    </message>
    <message>
        <source>川流不息</source>
        <translation>Fließend</translation>
    </message>
    <message>
        <source>霓虹</source>
        <translation>Neon</translation>
    </message>
    <message>
        <source>光波</source>
        <translation>Lichtwelle</translation>
    </message>
    <message>
        <source>繁星点点</source>
        <translation>Sternenhimmel</translation>
    </message>
    <message>
        <source>如影随形</source>
        <translation>Schatten</translation>
    </message>
    <message>
        <source>正弦波</source>
        <translation>Sinuswelle</translation>
    </message>
    <message>
        <source>彩泉涌动</source>
        <translation>Farbfontäne</translation>
    </message>
    <message>
        <source>百花争艳</source>
        <translation>Blütenmeer</translation>
    </message>
    <message>
        <source>一石二鸟</source>
        <translation>Doppeltreffer</translation>
    </message>
    <message>
        <source>峰回路转</source>
        <translation>Serpentinen</translation>
    </message>
    <message>
        <source>斜风细雨</source>
        <translation>Nieselregen</translation>
    </message>
    <message>
        <source>踏雪无痕</source>
        <translation>Spurloser Schnee</translation>
    </message>
    <message>
        <source>层出不穷</source>
        <translation>Schichten</translation>
    </message>
    <message>
        <source>光影</source>
        <translation>Licht und Schatten</translation>
    </message>
    <message>
        <source>音乐律动</source>
        <translation>Musikrhythmus</translation>
    </message>
    <message>
        <source>自定义</source>
        <translation>Eigene</translation>
    </message>
    <message>
        <source>左</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>右</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>上</source>
        <translation>Oben</translation>
    </message>
    <message>
        <source>下</source>
        <translation>Unten</translation>
    </message>
    <message>
        <source>Z形</source>
        <translation>Z-Form</translation>
    </message>
    <message>
        <source>回形</source>
        <translation>Spirale</translation>
    </message>
    <message>
        <source>向内</source>
        <translation>Nach innen</translation>
    </message>
    <message>
        <source>向外</source>
        <translation>Nach außen</translation>
    </message>
    <message>
        <source>向右</source>
        <translation>Nach rechts</translation>
    </message>
    <message>
        <source>向左</source>
        <translation>Nach links</translation>
    </message>
    <message>
        <source>图案1</source>
        <translation>Bild 1</translation>
    </message>
    <message>
        <source>图案2</source>
        <translation>Bild 2</translation>
    </message>
    <message>
        <source>图案3</source>
        <translation>Bild 3</translation>
    </message>
    <message>
        <source>图案4</source>
        <translation>Bild 4</translation>
    </message>
    <message>
        <source>图案5</source>
        <translation>Bild 5</translation>
    </message>
    <message>
        <source>顺时针</source>
        <translation>Im Uhrzeigersinn</translation>
    </message>
    <message>
        <source>逆时针</source>
        <translation>Gegen den Uhrzeigersinn</translation>
    </message>
    <message>
        <source>无</source>
        <translation>Keine</translation>
    </message>
</context>
<context>
    <name>ModuleEfSpeed</name>
    <message>
        <source>灯光速度</source>
        <translation>Tempo</translation>
    </message>
</context>
<context>
    <name>ModuleGenKeymapping</name>
    <message>
        <source>上一曲</source>
        <translation>Vorheriger Titel</translation>
    </message>
    <message>
        <source>下一曲</source>
        <translation>Nächster Titel</translation>
    </message>
    <message>
        <source>播放/暂停</source>
        <translation>Wiedergabe/Pause</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>静音</source>
        <translation>Stumm</translation>
    </message>
    <message>
        <source>音量+</source>
        <translation>Lautstärke&#xa0;+</translation>
    </message>
    <message>
        <source>音量-</source>
        <translation>Lautstärke&#xa0;−</translation>
    </message>
    <message>
        <source>播放器</source>
        <translation>Medienplayer</translation>
    </message>
    <message>
        <source>计算器</source>
        <translation>Rechner</translation>
    </message>
    <message>
        <source>邮件</source>
        <translation>E-Mail</translation>
    </message>
    <message>
        <source>我的电脑</source>
        <translation>Dieser PC</translation>
    </message>
    <message>
        <source>搜索</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>主页</source>
        <translation>Startseite</translation>
    </message>
    <message>
        <source>后退</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>前进</source>
        <translation>Vorwärts</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>收藏</source>
        <translation>Favoriten</translation>
    </message>
    <message>
        <source>亮度+</source>
        <translation>Bildschirm heller</translation>
    </message>
    <message>
        <source>亮度-</source>
        <translation>Bildschirm dunkler</translation>
    </message>
    <message>
        <source>放大</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>缩小</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>呼出Siri</source>
        <translation>Siri aufrufen</translation>
    </message>
    <message>
        <source>切换输入法</source>
        <translation>Eingabemethode wechseln</translation>
    </message>
    <message>
        <source>返回</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Fn键锁屏</source>
        <translation>Fn-Sperre</translation>
    </message>
    <message>
        <source>锁屏</source>
        <translation>Bildschirm sperren</translation>
    </message>
    <message>
        <source>R-Fn键</source>
        <translation>R-Fn-Taste</translation>
    </message>
    <message>
        <source>DPI-Loop</source>
        <translation>DPI durchschalten</translation>
    </message>
    <message>
        <source>DPI+</source>
        <translation>DPI&#xa0;+</translation>
    </message>
    <message>
        <source>DPI-</source>
        <translation>DPI&#xa0;−</translation>
    </message>
    <message>
        <source>DPI-Shift</source>
        <translation>DPI-Shift</translation>
    </message>
    <message>
        <source>电源</source>
        <translation>Ein/Aus</translation>
    </message>
    <message>
        <source>睡眠</source>
        <translation>Energiesparen</translation>
    </message>
    <message>
        <source>唤醒</source>
        <translation>Aufwecken</translation>
    </message>
    <message>
        <source>Profile-Value</source>
        <translation>Profilwert</translation>
    </message>
    <message>
        <source>Profile+</source>
        <translation>Profil&#xa0;+</translation>
    </message>
    <message>
        <source>Profile-</source>
        <translation>Profil&#xa0;−</translation>
    </message>
    <message>
        <source>Profile-Loop</source>
        <translation>Profile durchschalten</translation>
    </message>
    <message>
        <source>Profile-1</source>
        <translation>Profil 1</translation>
    </message>
    <message>
        <source>Profile-2</source>
        <translation>Profil 2</translation>
    </message>
    <message>
        <source>Profile-3</source>
        <translation>Profil 3</translation>
    </message>
    <message>
        <source>Profile-4</source>
        <translation>Profil 4</translation>
    </message>
    <message>
        <source>Profile-5</source>
        <translation>Profil 5</translation>
    </message>
    <message>
        <source>L-Fn键</source>
        <translation>L-Fn-Taste</translation>
    </message>
    <message>
        <source>恢复出厂设置</source>
        <translation>Werkseinstellungen</translation>
    </message>
    <message>
        <source>锁Win</source>
        <translation>Win-Sperre</translation>
    </message>
    <message>
        <source>切换Win</source>
        <translation>Zu Win wechseln</translation>
    </message>
    <message>
        <source>切换Mac</source>
        <translation>Zu Mac wechseln</translation>
    </message>
    <message>
        <source>系统切换</source>
        <translation>System wechseln</translation>
    </message>
    <message>
        <source>Check Battery</source>
        <translation>Akkustand prüfen</translation>
    </message>
    <message>
        <source>WASD切换</source>
        <translation>WASD umschalten</translation>
    </message>
    <message>
        <source>Fn层切换</source>
        <translation>Fn-Ebene umschalten</translation>
    </message>
    <message>
        <source>设备节能</source>
        <translation>Stromsparen</translation>
    </message>
    <message>
        <source>APP CTRL切换</source>
        <translation>APP CTRL umschalten</translation>
    </message>
    <message>
        <source>背光开/关</source>
        <translation>Beleuchtung ein/aus</translation>
    </message>
    <message>
        <source>背光灯效循环</source>
        <translation>Lichteffekt durchschalten</translation>
    </message>
    <message>
        <source>背光灯效+</source>
        <translation>Lichteffekt&#xa0;+</translation>
    </message>
    <message>
        <source>背光灯效-</source>
        <translation>Lichteffekt&#xa0;−</translation>
    </message>
    <message>
        <source>背光亮度循环</source>
        <translation>Beleuchtungsstärke durchschalten</translation>
    </message>
    <message>
        <source>背光亮度+</source>
        <translation>Beleuchtungsstärke&#xa0;+</translation>
    </message>
    <message>
        <source>背光亮度-</source>
        <translation>Beleuchtungsstärke&#xa0;−</translation>
    </message>
    <message>
        <source>背光速度循环</source>
        <translation>Effekttempo durchschalten</translation>
    </message>
    <message>
        <source>背光速度-</source>
        <translation>Effekttempo&#xa0;−</translation>
    </message>
    <message>
        <source>背光速度+</source>
        <translation>Effekttempo&#xa0;+</translation>
    </message>
    <message>
        <source>背光方向循环</source>
        <translation>Effektrichtung durchschalten</translation>
    </message>
    <message>
        <source>背光向左</source>
        <translation>Effekt nach links</translation>
    </message>
    <message>
        <source>背光向右</source>
        <translation>Effekt nach rechts</translation>
    </message>
    <message>
        <source>背光颜色循环</source>
        <translation>Lichtfarbe durchschalten</translation>
    </message>
    <message>
        <source>背光颜色+</source>
        <translation>Lichtfarbe&#xa0;+</translation>
    </message>
    <message>
        <source>背光颜色-</source>
        <translation>Lichtfarbe&#xa0;−</translation>
    </message>
    <message>
        <source>Use Pic 0</source>
        <translation>Bild 0 verwenden</translation>
    </message>
    <message>
        <source>Use Pic 1</source>
        <translation>Bild 1 verwenden</translation>
    </message>
    <message>
        <source>Use Pic 2</source>
        <translation>Bild 2 verwenden</translation>
    </message>
    <message>
        <source>Use Pic 3</source>
        <translation>Bild 3 verwenden</translation>
    </message>
    <message>
        <source>Use Pic 4</source>
        <translation>Bild 4 verwenden</translation>
    </message>
    <message>
        <source>Use Pic</source>
        <translation>Bild verwenden</translation>
    </message>
    <message>
        <source>侧光开/关</source>
        <translation>Seitenlicht ein/aus</translation>
    </message>
    <message>
        <source>侧光亮度循环</source>
        <translation>Seitenlicht-Helligkeit durchschalten</translation>
    </message>
    <message>
        <source>侧光速度循环</source>
        <translation>Seitenlicht-Tempo durchschalten</translation>
    </message>
    <message>
        <source>侧光速度+</source>
        <translation>Seitenlicht-Tempo&#xa0;+</translation>
    </message>
    <message>
        <source>侧光速度-</source>
        <translation>Seitenlicht-Tempo&#xa0;−</translation>
    </message>
    <message>
        <source>侧光颜色循环</source>
        <translation>Seitenlicht-Farbe durchschalten</translation>
    </message>
    <message>
        <source>侧光颜色+</source>
        <translation>Seitenlicht-Farbe&#xa0;+</translation>
    </message>
    <message>
        <source>侧光颜色-</source>
        <translation>Seitenlicht-Farbe&#xa0;−</translation>
    </message>
    <message>
        <source>2.4G</source>
        <translation>2.4G</translation>
    </message>
    <message>
        <source>蓝牙1</source>
        <translation>Bluetooth 1</translation>
    </message>
    <message>
        <source>蓝牙2</source>
        <translation>Bluetooth 2</translation>
    </message>
    <message>
        <source>蓝牙3</source>
        <translation>Bluetooth 3</translation>
    </message>
    <message>
        <source>有线</source>
        <translation>Kabel</translation>
    </message>
    <message>
        <source>有线-蓝牙-2.4G</source>
        <translation>Kabel-Bluetooth-2.4G</translation>
    </message>
    <message>
        <source>2.4G配对</source>
        <translation>2.4G-Kopplung</translation>
    </message>
    <message>
        <source>蓝牙配对</source>
        <translation>Bluetooth-Kopplung</translation>
    </message>
    <message>
        <source>Insert键</source>
        <translation>Einfg-Taste</translation>
    </message>
    <message>
        <source>Print Screen键</source>
        <translation>Druck-Taste</translation>
    </message>
    <message>
        <source>左键单击</source>
        <translation>Linksklick</translation>
    </message>
    <message>
        <source>右键单击</source>
        <translation>Rechtsklick</translation>
    </message>
    <message>
        <source>中键按下</source>
        <translation>Mittelklick</translation>
    </message>
    <message>
        <source>光标前进</source>
        <translation>Maus vorwärts</translation>
    </message>
    <message>
        <source>光标后退</source>
        <translation>Maus zurück</translation>
    </message>
    <message>
        <source>滚轮-向左</source>
        <translation>Rad links</translation>
    </message>
    <message>
        <source>滚轮-向右</source>
        <translation>Rad rechts</translation>
    </message>
    <message>
        <source>滚轮-向上</source>
        <translation>Rad hoch</translation>
    </message>
    <message>
        <source>滚轮-向下</source>
        <translation>Rad runter</translation>
    </message>
    <message>
        <source>向上滚屏</source>
        <translation>Nach oben scrollen</translation>
    </message>
    <message>
        <source>向下滚屏</source>
        <translation>Nach unten scrollen</translation>
    </message>
    <message>
        <source>XUP</source>
        <translation>XUP</translation>
    </message>
    <message>
        <source>XDOWN</source>
        <translation>XDOWN</translation>
    </message>
    <message>
        <source>YUP</source>
        <translation>YUP</translation>
    </message>
    <message>
        <source>YDOWN</source>
        <translation>YDOWN</translation>
    </message>
    <message>
        <source>宏设置</source>
        <translation>Makros</translation>
    </message>
    <message>
        <source>功能</source>
        <translation>Funktion</translation>
    </message>
    <message>
        <source>鼠标</source>
        <translation>Maus</translation>
    </message>
    <message>
        <source>组合</source>
        <translation>Kombi</translation>
    </message>
</context>
<context>
    <name>ModuleGeneralMasker</name>
    <message>
        <source>对话框</source>
        <translation>Dialog</translation>
    </message>
</context>
<context>
    <name>ModuleKeyboard</name>
    <message>
        <source>屏幕键盘</source>
        <translation>Bildschirmtastatur</translation>
    </message>
    <message>
        <source>已选中按键</source>
        <translation>Ausgewählte Taste</translation>
    </message>
    <message>
        <source>已修改按键</source>
        <translation>Geänderte Taste</translation>
    </message>
    <message>
        <source>已禁用按键</source>
        <translation>Deaktivierte Taste</translation>
    </message>
    <message>
        <source>取消禁用</source>
        <translation>Taste aktivieren</translation>
    </message>
    <message>
        <source>清除设置</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>禁用按键</source>
        <translation>Taste deaktivieren</translation>
    </message>
</context>
<context>
    <name>ModuleLangMenu</name>
    <message>
        <source>中文简体</source>
        <translation>中文简体</translation>
    </message>
    <message>
        <source>English</source>
        <translation>English</translation>
    </message>
    <message>
        <source>中文繁体</source>
        <translation>中文繁体</translation>
    </message>
    <message>
        <source>日本語</source>
        <translation>日本語</translation>
    </message>
    <message>
        <source>한국어</source>
        <translation>한국어</translation>
    </message>
    <message>
        <source>Русский</source>
        <translation>Русский</translation>
    </message>
    <message>
        <source>Tiếng Việt</source>
        <translation>Tiếng Việt</translation>
    </message>
    <message>
        <source>Português</source>
        <translation>Português</translation>
    </message>
    <message>
        <source>ภาษาไทย</source>
        <translation>ภาษาไทย</translation>
    </message>
    <message>
        <source>Deutsch</source>
        <translation>Deutsch</translation>
    </message>
    <message>
        <source>Français</source>
        <translation>Français</translation>
    </message>
    <message>
        <source>Svenska</source>
        <translation>Svenska</translation>
    </message>
    <message>
        <source>Italiano</source>
        <translation>Italiano</translation>
    </message>
    <message>
        <source>Türkçe</source>
        <translation>Türkçe</translation>
    </message>
</context>
<context>
    <name>ModuleLinear</name>
    <message>
        <source>按下(mm)</source>
        <translation>Auslösung (mm)</translation>
    </message>
    <message>
        <source>抬起(mm)</source>
        <translation>Loslassen (mm)</translation>
    </message>
    <message>
        <source>%1(mm)</source>
        <translation>%1 (mm)</translation>
    </message>
</context>
<context>
    <name>ModuleMTTab</name>
    <message>
        <source>选定上方键位，可通过选择单击及长按两种触发模式，设置两个功能（支持组合键）</source>
        <translation>Wähle oben eine Taste und gib ihr zwei Funktionen: eine fürs Tippen und eine fürs Halten (Kombinationen möglich)</translation>
    </message>
    <message>
        <source>单击</source>
        <translation>Tippen</translation>
    </message>
    <message>
        <source>按住</source>
        <translation>Halten</translation>
    </message>
    <message>
        <source>调整触发“按住&quot;键所需的时间</source>
        <translation>Zeit bis zum Auslösen von „Halten“ einstellen</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>按住超过这段时间才执行“按住”的功能</source>
        <translation>Länger gehalten führt die Taste ihre Funktion für „Halten“ aus</translation>
    </message>
</context>
<context>
    <name>ModuleMacroManager</name>
    <message>
        <source>新建宏</source>
        <translation>Neues Makro </translation>
    </message>
</context>
<context>
    <name>ModuleRtSet</name>
    <message>
        <source>RT行程设置(全局)</source>
        <translation>RT-Empfindlichkeit (global)</translation>
    </message>
</context>
<context>
    <name>ModuleScrollValue</name>
    <message>
        <source>数值滚轮</source>
        <translation>Werterad</translation>
    </message>
</context>
<context>
    <name>ModuleSnapTab</name>
    <message>
        <source>绑定2个选定按键(分别从上面选择)，当两个按键被同时按下时，以最后按下的按键为准</source>
        <translation>Verknüpft 2 Tasten (oben jeweils auswählen): Sind beide gedrückt, gilt die zuletzt gedrückte (SOCD)</translation>
    </message>
    <message>
        <source>选择A键</source>
        <translation>Taste A wählen</translation>
    </message>
    <message>
        <source>选择B键</source>
        <translation>Taste B wählen</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>ModuleTGLTab</name>
    <message>
        <source>选定上方键位，可通过选择连点及长按两种触发模式，设置两个功能</source>
        <translation>Wähle oben eine Taste und lege ihre Funktion als Dauerfeuer oder Halten fest</translation>
    </message>
    <message>
        <source>连点</source>
        <translation>Dauerfeuer</translation>
    </message>
    <message>
        <source>长按</source>
        <translation>Halten</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>未设置功能</source>
        <translation>Keine Funktion</translation>
    </message>
</context>
<context>
    <name>ModuleVideoItem</name>
    <message>
        <source>Movie</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Orbe 7090 操作指南-宏设置</source>
        <translation>Orbe 7090 Anleitung: Makros</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Select All</source>
        <translation>Alles au&amp;swählen</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>Er&amp;höhen</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>&amp;Verringern</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>Wieder&amp;holen</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Ausschneiden</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>E&amp;infügen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles auswählen</translation>
    </message>
</context>
<context>
    <name>ShellNotices</name>
    <message>
        <source>重试</source>
        <translation>Erneut versuchen</translation>
    </message>
</context>
<context>
    <name>StabilityPage</name>
    <message>
        <source>RT Stab(RT 增稳算法)</source>
        <translation>RT Stab (RT-Stabilisierung)</translation>
    </message>
    <message>
        <source>RT Stab打开后，算法会介入增强轴体底部的稳定性。介入百分比越大，稳定性越强，延迟也会有所增加。</source>
        <translation>RT Stab stabilisiert den unteren Bereich des Hubs. Ein höherer Wert ist stabiler, erhöht aber die Latenz etwas.</translation>
    </message>
    <message>
        <source>0%(关闭)</source>
        <translation>0% (aus)</translation>
    </message>
    <message>
        <source>防误触模式</source>
        <translation>Schutz vor Fehlauslösung</translation>
    </message>
    <message>
        <source>(已关闭)</source>
        <translation>(Aus)</translation>
    </message>
    <message>
        <source>防止极限性能下桌面抖动误触发或轴体公差可能造成还有0.1mm的行程公差。开启后优化底部按键算法补足行程差值提高键盘稳定性。</source>
        <translation>Verhindert Fehlauslösungen durch einen wackelnden Tisch bei extremen Einstellungen und gleicht Switch-Toleranzen bis 0,1 mm aus. Eingeschaltet ist der Algorithmus am unteren Ende des Hubs darauf abgestimmt, und die Tastatur arbeitet stabiler.</translation>
    </message>
    <message>
        <source>已开启</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>已关闭</source>
        <translation>Aus</translation>
    </message>
</context>
<context>
    <name>SwitchTypePage</name>
    <message>
        <source>轴体设置</source>
        <translation>Switch-Typ</translation>
    </message>
    <message>
        <source>更换键盘轴体后，选择对应轴体的按键，点击下方对应的轴体选项进行设置来区分不同轴体</source>
        <translation>Wähle nach einem Switch-Wechsel unten den passenden Switch und klicke die Tasten an, in denen er steckt</translation>
    </message>
    <message>
        <source>炫光</source>
        <translation>Dazzle</translation>
    </message>
    <message>
        <source>闪电</source>
        <translation>Lightning</translation>
    </message>
    <message>
        <source>星芒磁轴</source>
        <translation>Starburst</translation>
    </message>
    <message>
        <source>磁玉</source>
        <translation>Magnetic Jade</translation>
    </message>
    <message>
        <source>磁玉Pro</source>
        <translation>Magnetic Jade Pro</translation>
    </message>
    <message>
        <source>磁玉Gaming</source>
        <translation>Magnetic Jade Gaming</translation>
    </message>
    <message>
        <source>天王</source>
        <translation>Heavenly King</translation>
    </message>
    <message>
        <source>万磁王</source>
        <translation>King of Magnets</translation>
    </message>
</context>
<context>
    <name>ToggleButton</name>
    <message>
        <source>开关</source>
        <translation>Schalter</translation>
    </message>
</context>
<context>
    <name>TravelPage</name>
    <message>
        <source>单独设置按下抬起触发行程：</source>
        <translation>Auslösen und Loslassen getrennt einstellen:</translation>
    </message>
    <message>
        <source>全程连续快速触发（RT）</source>
        <translation>Durchgehender Rapid Trigger (RT)</translation>
    </message>
    <message>
        <source>启用时，快速触发在您完全松开按键时才会终止。
禁用时，松开按键到轴体触发行程后终止快速触发</source>
        <translation>Ein: Rapid Trigger endet erst, wenn die Taste ganz losgelassen ist.
Aus: Rapid Trigger endet, sobald die Taste über den Auslösepunkt steigt</translation>
    </message>
    <message>
        <source>单独设置按键再次按下触发和松开重置行程</source>
        <translation>RT-Weg fürs Drücken und Loslassen getrennt einstellen</translation>
    </message>
    <message>
        <source>再次按下按键触发所需的行程(mm)</source>
        <translation>Weg bis zum erneuten Auslösen (mm)</translation>
    </message>
    <message>
        <source>松开按键重置所需的行程(mm)</source>
        <translation>Weg bis zum Rücksetzen (mm)</translation>
    </message>
    <message>
        <source>设置</source>
        <translation>Anwenden</translation>
    </message>
    <message>
        <source>抬起后再按下这段距离即再次触发，越小越灵敏</source>
        <translation>Ein Druck um diese Strecke löst erneut aus, wo die Taste auch steht; kleiner ist empfindlicher</translation>
    </message>
    <message>
        <source>按下后抬起这段距离即释放，越小越灵敏</source>
        <translation>Ein Anheben um diese Strecke setzt die Taste zurück, wo sie auch steht; kleiner ist empfindlicher</translation>
    </message>
    <message>
        <source>按键按到多深时触发</source>
        <translation>Wie tief eine Taste gedrückt wird, bis sie auslöst</translation>
    </message>
    <message>
        <source>按键抬到多高时释放</source>
        <translation>Wie weit eine Taste hochkommt, bis sie zurücksetzt</translation>
    </message>
</context>
<context>
    <name>TravelRuler</name>
    <message>
        <source>行程测试</source>
        <translation>Hubtest</translation>
    </message>
</context>
<context>
    <name>WorkMeter</name>
    <message>
        <source>正在读取键盘</source>
        <translation>Tastatur wird gelesen</translation>
    </message>
    <message>
        <source>正在写入键盘</source>
        <translation>Tastatur wird beschrieben</translation>
    </message>
</context>
</TS>
