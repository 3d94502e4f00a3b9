<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="zh_CN">
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
    <name>DemoDesk</name>
    <message>
        <source>虚拟设备</source>
        <translation>Virtuelle Geräte</translation>
    </message>
    <message>
        <source>插入或拔出虚拟设备：</source>
        <translation>Virtuelle Geräte an- oder abstecken:</translation>
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
    <name>FrameAbout</name>
    <message>
        <source>关于</source>
        <translation>Über</translation>
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
        <translation>Magnetschalter-Einstellungen</translation>
    </message>
    <message>
        <source>宏设置</source>
        <translation>Makroeinstellungen</translation>
    </message>
    <message>
        <source>灯效设置</source>
        <translation>Beleuchtungseinstellungen</translation>
    </message>
    <message>
        <source>关于</source>
        <translation>Über</translation>
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
        <translation>Onboard 1</translation>
    </message>
    <message>
        <source>板载 2</source>
        <translation>Onboard 2</translation>
    </message>
    <message>
        <source>板载 3</source>
        <translation>Onboard 3</translation>
    </message>
    <message>
        <source>板载 4</source>
        <translation>Onboard 4</translation>
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
        <translation>Programm beim Systemstart ausführen</translation>
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
        <translation>Meine Geräte</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>确定要退出 ORBE 驱动程序？</source>
        <translation>Möchten Sie den ORBE-Treiber wirklich beenden?</translation>
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
        <translation>Lautstärke +</translation>
    </message>
    <message>
        <source>音量-</source>
        <translation>Lautstärke -</translation>
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
        <translation>Arbeitsplatz</translation>
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
        <translation>Helligkeit +</translation>
    </message>
    <message>
        <source>亮度-</source>
        <translation>Helligkeit -</translation>
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
        <translation>DPI-Loop</translation>
    </message>
    <message>
        <source>DPI+</source>
        <translation>DPI+</translation>
    </message>
    <message>
        <source>DPI-</source>
        <translation>DPI-</translation>
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
        <translation>Profile-Value</translation>
    </message>
    <message>
        <source>Profile+</source>
        <translation>Profile+</translation>
    </message>
    <message>
        <source>Profile-</source>
        <translation>Profile-</translation>
    </message>
    <message>
        <source>Profile-Loop</source>
        <translation>Profile-Loop</translation>
    </message>
    <message>
        <source>Profile-1</source>
        <translation>Profile-1</translation>
    </message>
    <message>
        <source>Profile-2</source>
        <translation>Profile-2</translation>
    </message>
    <message>
        <source>Profile-3</source>
        <translation>Profile-3</translation>
    </message>
    <message>
        <source>Profile-4</source>
        <translation>Profile-4</translation>
    </message>
    <message>
        <source>Profile-5</source>
        <translation>Profile-5</translation>
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
        <translation>Lichteffekt +</translation>
    </message>
    <message>
        <source>背光灯效-</source>
        <translation>Lichteffekt -</translation>
    </message>
    <message>
        <source>背光亮度循环</source>
        <translation>Beleuchtungsstärke durchschalten</translation>
    </message>
    <message>
        <source>背光亮度+</source>
        <translation>Beleuchtungsstärke +</translation>
    </message>
    <message>
        <source>背光亮度-</source>
        <translation>Beleuchtungsstärke -</translation>
    </message>
    <message>
        <source>背光速度循环</source>
        <translation>Effekttempo durchschalten</translation>
    </message>
    <message>
        <source>背光速度-</source>
        <translation>Effekttempo -</translation>
    </message>
    <message>
        <source>背光速度+</source>
        <translation>Effekttempo +</translation>
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
        <translation>Lichtfarbe +</translation>
    </message>
    <message>
        <source>背光颜色-</source>
        <translation>Lichtfarbe -</translation>
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
        <translation>Seitenlicht-Tempo +</translation>
    </message>
    <message>
        <source>侧光速度-</source>
        <translation>Seitenlicht-Tempo -</translation>
    </message>
    <message>
        <source>侧光颜色循环</source>
        <translation>Seitenlicht-Farbe durchschalten</translation>
    </message>
    <message>
        <source>侧光颜色+</source>
        <translation>Seitenlicht-Farbe +</translation>
    </message>
    <message>
        <source>侧光颜色-</source>
        <translation>Seitenlicht-Farbe -</translation>
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
        <translation>Makroeinstellungen</translation>
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
    <name>ModuleScrollValue</name>
    <message>
        <source>数值滚轮</source>
        <translation>Werterad</translation>
    </message>
</context>
<context>
    <name>ModuleVideoItem</name>
    <message>
        <source>Movie</source>
        <translation>Movie</translation>
    </message>
    <message>
        <source>Orbe 7090 操作指南-宏设置</source>
        <translation>Orbe 7090 Anleitung: Makros</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nein</translation>
    </message>
</context>
<context>
    <name>ToggleButton</name>
    <message>
        <source>开关</source>
        <translation>Schalter</translation>
    </message>
</context>
</TS>
