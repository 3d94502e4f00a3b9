<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sv_SE" sourcelanguage="zh_CN">
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
        <translation>Kommando,Datalängd,Byte0
Kommandonr (Hex),Byte1
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
        <translation>Flikar</translation>
    </message>
</context>
<context>
    <name>CustumSlider</name>
    <message>
        <source>滑块</source>
        <translation>Reglage</translation>
    </message>
</context>
<context>
    <name>DemoDesk</name>
    <message>
        <source>虚拟设备</source>
        <translation>Virtuella enheter</translation>
    </message>
    <message>
        <source>插入或拔出虚拟设备：</source>
        <translation>Anslut eller koppla från virtuella enheter:</translation>
    </message>
</context>
<context>
    <name>DialogDeviceConnect</name>
    <message>
        <source>Orbe Studio 设备调试</source>
        <translation>Orbe Studio enhetsfelsökning</translation>
    </message>
    <message>
        <source>命令目录</source>
        <translation>Kommandokatalog</translation>
    </message>
</context>
<context>
    <name>FrameAbout</name>
    <message>
        <source>关于</source>
        <translation>Om</translation>
    </message>
    <message>
        <source>设备名称：Orbe 7090</source>
        <translation>Enhetsnamn: Orbe 7090</translation>
    </message>
    <message>
        <source>键盘固件版本：V1.0</source>
        <translation>Tangentbordets firmware: V1.0</translation>
    </message>
    <message>
        <source>无线连接器固件版本：V1.0</source>
        <translation>Mottagarens firmware: V1.0</translation>
    </message>
    <message>
        <source>当前版本：V1.0</source>
        <translation>Aktuell version: V1.0</translation>
    </message>
    <message>
        <source>检查键盘固件更新</source>
        <translation>Sök firmware för tangentbordet</translation>
    </message>
    <message>
        <source>检查无线连接器固件更新</source>
        <translation>Sök firmware för mottagaren</translation>
    </message>
    <message>
        <source>操作教学</source>
        <translation>Guider</translation>
    </message>
    <message>
        <source>关于Orbe</source>
        <translation>Om Orbe</translation>
    </message>
</context>
<context>
    <name>FrameDeviceHolder</name>
    <message>
        <source>首页</source>
        <translation>Hem</translation>
    </message>
    <message>
        <source>键盘设置</source>
        <translation>Tangentinställningar</translation>
    </message>
    <message>
        <source>磁轴设置</source>
        <translation>Inställningar för magnetbrytare</translation>
    </message>
    <message>
        <source>宏设置</source>
        <translation>Makroinställningar</translation>
    </message>
    <message>
        <source>灯效设置</source>
        <translation>Belysningsinställningar</translation>
    </message>
    <message>
        <source>关于</source>
        <translation>Om</translation>
    </message>
    <message>
        <source>用户</source>
        <translation>Användare</translation>
    </message>
    <message>
        <source>返回</source>
        <translation>Tillbaka</translation>
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
        <translation>Parkoppla</translation>
    </message>
    <message>
        <source>恢复默认</source>
        <translation>Återställ</translation>
    </message>
    <message>
        <source>行程校准</source>
        <translation>Kalibrera</translation>
    </message>
    <message>
        <source>灯光设置</source>
        <translation>Ljusinställningar</translation>
    </message>
</context>
<context>
    <name>FrameDeviceShow</name>
    <message>
        <source>剩余电量</source>
        <translation>Återstående batteri</translation>
    </message>
</context>
<context>
    <name>FrameSystemInfo</name>
    <message>
        <source>系统设置</source>
        <translation>Systeminställningar</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Stäng</translation>
    </message>
    <message>
        <source>开机时自动开启本程序</source>
        <translation>Starta programmet när datorn startar</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Avbryt</translation>
    </message>
</context>
<context>
    <name>HubTray</name>
    <message>
        <source>显示窗口</source>
        <translation>Visa fönstret</translation>
    </message>
    <message>
        <source>隐藏窗口</source>
        <translation>Dölj fönstret</translation>
    </message>
    <message>
        <source>退出程序</source>
        <translation>Avsluta</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>语言</source>
        <translation>Språk</translation>
    </message>
    <message>
        <source>系统设置</source>
        <translation>Systeminställningar</translation>
    </message>
    <message>
        <source>最小化</source>
        <translation>Minimera</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Av</translation>
    </message>
    <message>
        <source>搜索设备</source>
        <translation>Sök enheter</translation>
    </message>
    <message>
        <source>我的设备</source>
        <translation>Mina enheter</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Meddelande</translation>
    </message>
    <message>
        <source>确定要退出 ORBE 驱动程序？</source>
        <translation>Vill du avsluta ORBE-drivrutinen?</translation>
    </message>
    <message>
        <source>正在搜索设备</source>
        <translation>Söker efter enheter</translation>
    </message>
    <message>
        <source>向左滚动</source>
        <translation>Bläddra åt vänster</translation>
    </message>
    <message>
        <source>向右滚动</source>
        <translation>Bläddra åt höger</translation>
    </message>
    <message>
        <source>返回</source>
        <translation>Tillbaka</translation>
    </message>
</context>
<context>
    <name>ModuleGenKeymapping</name>
    <message>
        <source>上一曲</source>
        <translation>Föregående spår</translation>
    </message>
    <message>
        <source>下一曲</source>
        <translation>Nästa spår</translation>
    </message>
    <message>
        <source>播放/暂停</source>
        <translation>Spela/Pausa</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>静音</source>
        <translation>Ljud av</translation>
    </message>
    <message>
        <source>音量+</source>
        <translation>Volym +</translation>
    </message>
    <message>
        <source>音量-</source>
        <translation>Volym -</translation>
    </message>
    <message>
        <source>播放器</source>
        <translation>Mediespelare</translation>
    </message>
    <message>
        <source>计算器</source>
        <translation>Kalkylator</translation>
    </message>
    <message>
        <source>邮件</source>
        <translation>E-post</translation>
    </message>
    <message>
        <source>我的电脑</source>
        <translation>Den här datorn</translation>
    </message>
    <message>
        <source>搜索</source>
        <translation>Sök</translation>
    </message>
    <message>
        <source>主页</source>
        <translation>Startsida</translation>
    </message>
    <message>
        <source>后退</source>
        <translation>Bakåt</translation>
    </message>
    <message>
        <source>前进</source>
        <translation>Framåt</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>Uppdatera</translation>
    </message>
    <message>
        <source>收藏</source>
        <translation>Favoriter</translation>
    </message>
    <message>
        <source>亮度+</source>
        <translation>Ljusstyrka +</translation>
    </message>
    <message>
        <source>亮度-</source>
        <translation>Ljusstyrka -</translation>
    </message>
    <message>
        <source>放大</source>
        <translation>Zooma in</translation>
    </message>
    <message>
        <source>缩小</source>
        <translation>Zooma ut</translation>
    </message>
    <message>
        <source>呼出Siri</source>
        <translation>Anropa Siri</translation>
    </message>
    <message>
        <source>切换输入法</source>
        <translation>Byt inmatningsmetod</translation>
    </message>
    <message>
        <source>返回</source>
        <translation>Tillbaka</translation>
    </message>
    <message>
        <source>Fn键锁屏</source>
        <translation>Fn-lås</translation>
    </message>
    <message>
        <source>锁屏</source>
        <translation>Lås skärmen</translation>
    </message>
    <message>
        <source>R-Fn键</source>
        <translation>R-Fn-tangent</translation>
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
        <translation>Ström</translation>
    </message>
    <message>
        <source>睡眠</source>
        <translation>Vila</translation>
    </message>
    <message>
        <source>唤醒</source>
        <translation>Väck</translation>
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
        <translation>L-Fn-tangent</translation>
    </message>
    <message>
        <source>恢复出厂设置</source>
        <translation>Fabriksåterställning</translation>
    </message>
    <message>
        <source>锁Win</source>
        <translation>Lås Win</translation>
    </message>
    <message>
        <source>切换Win</source>
        <translation>Byt till Win</translation>
    </message>
    <message>
        <source>切换Mac</source>
        <translation>Byt till Mac</translation>
    </message>
    <message>
        <source>系统切换</source>
        <translation>Byt system</translation>
    </message>
    <message>
        <source>Check Battery</source>
        <translation>Visa batterinivå</translation>
    </message>
    <message>
        <source>WASD切换</source>
        <translation>Växla WASD</translation>
    </message>
    <message>
        <source>Fn层切换</source>
        <translation>Växla Fn-lager</translation>
    </message>
    <message>
        <source>设备节能</source>
        <translation>Energisparläge</translation>
    </message>
    <message>
        <source>APP CTRL切换</source>
        <translation>Växla APP CTRL</translation>
    </message>
    <message>
        <source>背光开/关</source>
        <translation>Bakgrundsljus på/av</translation>
    </message>
    <message>
        <source>背光灯效循环</source>
        <translation>Bläddra ljuseffekter</translation>
    </message>
    <message>
        <source>背光灯效+</source>
        <translation>Ljuseffekt +</translation>
    </message>
    <message>
        <source>背光灯效-</source>
        <translation>Ljuseffekt -</translation>
    </message>
    <message>
        <source>背光亮度循环</source>
        <translation>Bläddra ljusstyrka</translation>
    </message>
    <message>
        <source>背光亮度+</source>
        <translation>Bakgrundsljus +</translation>
    </message>
    <message>
        <source>背光亮度-</source>
        <translation>Bakgrundsljus -</translation>
    </message>
    <message>
        <source>背光速度循环</source>
        <translation>Bläddra hastighet</translation>
    </message>
    <message>
        <source>背光速度-</source>
        <translation>Ljushastighet -</translation>
    </message>
    <message>
        <source>背光速度+</source>
        <translation>Ljushastighet +</translation>
    </message>
    <message>
        <source>背光方向循环</source>
        <translation>Bläddra riktning</translation>
    </message>
    <message>
        <source>背光向左</source>
        <translation>Ljus åt vänster</translation>
    </message>
    <message>
        <source>背光向右</source>
        <translation>Ljus åt höger</translation>
    </message>
    <message>
        <source>背光颜色循环</source>
        <translation>Bläddra färger</translation>
    </message>
    <message>
        <source>背光颜色+</source>
        <translation>Ljusfärg +</translation>
    </message>
    <message>
        <source>背光颜色-</source>
        <translation>Ljusfärg -</translation>
    </message>
    <message>
        <source>Use Pic 0</source>
        <translation>Använd bild 0</translation>
    </message>
    <message>
        <source>Use Pic 1</source>
        <translation>Använd bild 1</translation>
    </message>
    <message>
        <source>Use Pic 2</source>
        <translation>Använd bild 2</translation>
    </message>
    <message>
        <source>Use Pic 3</source>
        <translation>Använd bild 3</translation>
    </message>
    <message>
        <source>Use Pic 4</source>
        <translation>Använd bild 4</translation>
    </message>
    <message>
        <source>Use Pic</source>
        <translation>Använd bild</translation>
    </message>
    <message>
        <source>侧光开/关</source>
        <translation>Sidoljus på/av</translation>
    </message>
    <message>
        <source>侧光亮度循环</source>
        <translation>Bläddra sidoljusstyrka</translation>
    </message>
    <message>
        <source>侧光速度循环</source>
        <translation>Bläddra sidoljushastighet</translation>
    </message>
    <message>
        <source>侧光速度+</source>
        <translation>Sidoljushastighet +</translation>
    </message>
    <message>
        <source>侧光速度-</source>
        <translation>Sidoljushastighet -</translation>
    </message>
    <message>
        <source>侧光颜色循环</source>
        <translation>Bläddra sidoljusfärg</translation>
    </message>
    <message>
        <source>侧光颜色+</source>
        <translation>Sidoljusfärg +</translation>
    </message>
    <message>
        <source>侧光颜色-</source>
        <translation>Sidoljusfärg -</translation>
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
        <translation>2.4G-parkoppling</translation>
    </message>
    <message>
        <source>蓝牙配对</source>
        <translation>Bluetooth-parkoppling</translation>
    </message>
    <message>
        <source>Insert键</source>
        <translation>Insert-tangent</translation>
    </message>
    <message>
        <source>Print Screen键</source>
        <translation>Print Screen-tangent</translation>
    </message>
    <message>
        <source>左键单击</source>
        <translation>Vänsterklick</translation>
    </message>
    <message>
        <source>右键单击</source>
        <translation>Högerklick</translation>
    </message>
    <message>
        <source>中键按下</source>
        <translation>Mittenklick</translation>
    </message>
    <message>
        <source>光标前进</source>
        <translation>Mus framåt</translation>
    </message>
    <message>
        <source>光标后退</source>
        <translation>Mus bakåt</translation>
    </message>
    <message>
        <source>滚轮-向左</source>
        <translation>Hjul vänster</translation>
    </message>
    <message>
        <source>滚轮-向右</source>
        <translation>Hjul höger</translation>
    </message>
    <message>
        <source>滚轮-向上</source>
        <translation>Hjul upp</translation>
    </message>
    <message>
        <source>滚轮-向下</source>
        <translation>Hjul ned</translation>
    </message>
    <message>
        <source>向上滚屏</source>
        <translation>Rulla upp</translation>
    </message>
    <message>
        <source>向下滚屏</source>
        <translation>Rulla ned</translation>
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
        <translation>Makroinställningar</translation>
    </message>
    <message>
        <source>功能</source>
        <translation>Funktion</translation>
    </message>
    <message>
        <source>鼠标</source>
        <translation>Mus</translation>
    </message>
    <message>
        <source>组合</source>
        <translation>Kombination</translation>
    </message>
</context>
<context>
    <name>ModuleGeneralMasker</name>
    <message>
        <source>对话框</source>
        <translation>Dialogruta</translation>
    </message>
</context>
<context>
    <name>ModuleKeyboard</name>
    <message>
        <source>屏幕键盘</source>
        <translation>Skärmtangentbord</translation>
    </message>
    <message>
        <source>已选中按键</source>
        <translation>Vald tangent</translation>
    </message>
    <message>
        <source>已修改按键</source>
        <translation>Ändrad tangent</translation>
    </message>
    <message>
        <source>已禁用按键</source>
        <translation>Inaktiverad tangent</translation>
    </message>
    <message>
        <source>取消禁用</source>
        <translation>Aktivera tangent</translation>
    </message>
    <message>
        <source>清除设置</source>
        <translation>Rensa</translation>
    </message>
    <message>
        <source>禁用按键</source>
        <translation>Inaktivera tangent</translation>
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
        <translation>Värdehjul</translation>
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
        <translation>Guide Orbe 7090: makron</translation>
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
        <translation>&amp;Nej</translation>
    </message>
</context>
<context>
    <name>ToggleButton</name>
    <message>
        <source>开关</source>
        <translation>Omkopplare</translation>
    </message>
</context>
</TS>
