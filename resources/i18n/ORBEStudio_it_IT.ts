<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="zh_CN">
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
        <translation>Comando,Lunghezza dati,Byte0
N. comando (Hex),Byte1
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
        <translation>Schede</translation>
    </message>
</context>
<context>
    <name>CustumSlider</name>
    <message>
        <source>滑块</source>
        <translation>Cursore</translation>
    </message>
</context>
<context>
    <name>DemoDesk</name>
    <message>
        <source>虚拟设备</source>
        <translation>Dispositivi virtuali</translation>
    </message>
    <message>
        <source>插入或拔出虚拟设备：</source>
        <translation>Collega o scollega dispositivi virtuali:</translation>
    </message>
</context>
<context>
    <name>DialogDeviceConnect</name>
    <message>
        <source>Orbe Studio 设备调试</source>
        <translation>Debug dispositivo Orbe Studio</translation>
    </message>
    <message>
        <source>命令目录</source>
        <translation>Catalogo dei comandi</translation>
    </message>
</context>
<context>
    <name>FrameAbout</name>
    <message>
        <source>关于</source>
        <translation>Informazioni</translation>
    </message>
    <message>
        <source>设备名称：Orbe 7090</source>
        <translation>Nome dispositivo: Orbe 7090</translation>
    </message>
    <message>
        <source>键盘固件版本：V1.0</source>
        <translation>Versione firmware tastiera: V1.0</translation>
    </message>
    <message>
        <source>无线连接器固件版本：V1.0</source>
        <translation>Versione firmware ricevitore: V1.0</translation>
    </message>
    <message>
        <source>当前版本：V1.0</source>
        <translation>Versione attuale: V1.0</translation>
    </message>
    <message>
        <source>检查键盘固件更新</source>
        <translation>Verifica firmware della tastiera</translation>
    </message>
    <message>
        <source>检查无线连接器固件更新</source>
        <translation>Verifica firmware del ricevitore</translation>
    </message>
    <message>
        <source>操作教学</source>
        <translation>Tutorial</translation>
    </message>
    <message>
        <source>关于Orbe</source>
        <translation>Informazioni su Orbe</translation>
    </message>
</context>
<context>
    <name>FrameDeviceHolder</name>
    <message>
        <source>首页</source>
        <translation>Home</translation>
    </message>
    <message>
        <source>键盘设置</source>
        <translation>Impostazioni tasti</translation>
    </message>
    <message>
        <source>磁轴设置</source>
        <translation>Impostazioni switch magnetici</translation>
    </message>
    <message>
        <source>宏设置</source>
        <translation>Impostazioni macro</translation>
    </message>
    <message>
        <source>灯效设置</source>
        <translation>Impostazioni illuminazione</translation>
    </message>
    <message>
        <source>关于</source>
        <translation>Informazioni</translation>
    </message>
    <message>
        <source>用户</source>
        <translation>Utente</translation>
    </message>
    <message>
        <source>返回</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>板载 1</source>
        <translation>Profilo 1</translation>
    </message>
    <message>
        <source>板载 2</source>
        <translation>Profilo 2</translation>
    </message>
    <message>
        <source>板载 3</source>
        <translation>Profilo 3</translation>
    </message>
    <message>
        <source>板载 4</source>
        <translation>Profilo 4</translation>
    </message>
    <message>
        <source>对码</source>
        <translation>Associa</translation>
    </message>
    <message>
        <source>恢复默认</source>
        <translation>Ripristina</translation>
    </message>
    <message>
        <source>行程校准</source>
        <translation>Calibrazione corsa</translation>
    </message>
    <message>
        <source>灯光设置</source>
        <translation>Impostazioni luce</translation>
    </message>
</context>
<context>
    <name>FrameDeviceShow</name>
    <message>
        <source>剩余电量</source>
        <translation>Carica residua</translation>
    </message>
</context>
<context>
    <name>FrameSystemInfo</name>
    <message>
        <source>系统设置</source>
        <translation>Impostazioni di sistema</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>开机时自动开启本程序</source>
        <translation>Avvia questo programma all’accensione</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>HubTray</name>
    <message>
        <source>显示窗口</source>
        <translation>Mostra finestra</translation>
    </message>
    <message>
        <source>隐藏窗口</source>
        <translation>Nascondi finestra</translation>
    </message>
    <message>
        <source>退出程序</source>
        <translation>Esci</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>语言</source>
        <translation>Lingua</translation>
    </message>
    <message>
        <source>系统设置</source>
        <translation>Impostazioni di sistema</translation>
    </message>
    <message>
        <source>最小化</source>
        <translation>Riduci a icona</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Spento</translation>
    </message>
    <message>
        <source>搜索设备</source>
        <translation>Cerca dispositivi</translation>
    </message>
    <message>
        <source>我的设备</source>
        <translation>I miei dispositivi</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Avviso</translation>
    </message>
    <message>
        <source>确定要退出 ORBE 驱动程序？</source>
        <translation>Vuoi davvero uscire dal driver ORBE?</translation>
    </message>
    <message>
        <source>正在搜索设备</source>
        <translation>Ricerca dispositivi</translation>
    </message>
    <message>
        <source>向左滚动</source>
        <translation>Scorri a sinistra</translation>
    </message>
    <message>
        <source>向右滚动</source>
        <translation>Scorri a destra</translation>
    </message>
    <message>
        <source>返回</source>
        <translation>Indietro</translation>
    </message>
</context>
<context>
    <name>ModuleGenKeymapping</name>
    <message>
        <source>上一曲</source>
        <translation>Brano precedente</translation>
    </message>
    <message>
        <source>下一曲</source>
        <translation>Brano successivo</translation>
    </message>
    <message>
        <source>播放/暂停</source>
        <translation>Riproduci/Pausa</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>静音</source>
        <translation>Muto</translation>
    </message>
    <message>
        <source>音量+</source>
        <translation>Volume +</translation>
    </message>
    <message>
        <source>音量-</source>
        <translation>Volume -</translation>
    </message>
    <message>
        <source>播放器</source>
        <translation>Lettore multimediale</translation>
    </message>
    <message>
        <source>计算器</source>
        <translation>Calcolatrice</translation>
    </message>
    <message>
        <source>邮件</source>
        <translation>Posta</translation>
    </message>
    <message>
        <source>我的电脑</source>
        <translation>Computer</translation>
    </message>
    <message>
        <source>搜索</source>
        <translation>Cerca</translation>
    </message>
    <message>
        <source>主页</source>
        <translation>Pagina iniziale</translation>
    </message>
    <message>
        <source>后退</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>前进</source>
        <translation>Avanti</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>Aggiorna</translation>
    </message>
    <message>
        <source>收藏</source>
        <translation>Preferiti</translation>
    </message>
    <message>
        <source>亮度+</source>
        <translation>Luminosità +</translation>
    </message>
    <message>
        <source>亮度-</source>
        <translation>Luminosità -</translation>
    </message>
    <message>
        <source>放大</source>
        <translation>Ingrandisci</translation>
    </message>
    <message>
        <source>缩小</source>
        <translation>Riduci</translation>
    </message>
    <message>
        <source>呼出Siri</source>
        <translation>Chiama Siri</translation>
    </message>
    <message>
        <source>切换输入法</source>
        <translation>Cambia metodo di immissione</translation>
    </message>
    <message>
        <source>返回</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>Fn键锁屏</source>
        <translation>Blocco Fn</translation>
    </message>
    <message>
        <source>锁屏</source>
        <translation>Blocca schermo</translation>
    </message>
    <message>
        <source>R-Fn键</source>
        <translation>Tasto R-Fn</translation>
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
        <translation>Accensione</translation>
    </message>
    <message>
        <source>睡眠</source>
        <translation>Sospensione</translation>
    </message>
    <message>
        <source>唤醒</source>
        <translation>Riattiva</translation>
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
        <translation>Tasto L-Fn</translation>
    </message>
    <message>
        <source>恢复出厂设置</source>
        <translation>Ripristino di fabbrica</translation>
    </message>
    <message>
        <source>锁Win</source>
        <translation>Blocca Win</translation>
    </message>
    <message>
        <source>切换Win</source>
        <translation>Passa a Win</translation>
    </message>
    <message>
        <source>切换Mac</source>
        <translation>Passa a Mac</translation>
    </message>
    <message>
        <source>系统切换</source>
        <translation>Cambia sistema</translation>
    </message>
    <message>
        <source>Check Battery</source>
        <translation>Controlla batteria</translation>
    </message>
    <message>
        <source>WASD切换</source>
        <translation>Commuta WASD</translation>
    </message>
    <message>
        <source>Fn层切换</source>
        <translation>Commuta livello Fn</translation>
    </message>
    <message>
        <source>设备节能</source>
        <translation>Risparmio energetico</translation>
    </message>
    <message>
        <source>APP CTRL切换</source>
        <translation>Commuta APP CTRL</translation>
    </message>
    <message>
        <source>背光开/关</source>
        <translation>Retroilluminazione on/off</translation>
    </message>
    <message>
        <source>背光灯效循环</source>
        <translation>Ciclo effetti</translation>
    </message>
    <message>
        <source>背光灯效+</source>
        <translation>Effetto +</translation>
    </message>
    <message>
        <source>背光灯效-</source>
        <translation>Effetto -</translation>
    </message>
    <message>
        <source>背光亮度循环</source>
        <translation>Ciclo luminosità</translation>
    </message>
    <message>
        <source>背光亮度+</source>
        <translation>Luminosità tasti +</translation>
    </message>
    <message>
        <source>背光亮度-</source>
        <translation>Luminosità tasti -</translation>
    </message>
    <message>
        <source>背光速度循环</source>
        <translation>Ciclo velocità</translation>
    </message>
    <message>
        <source>背光速度-</source>
        <translation>Velocità effetto -</translation>
    </message>
    <message>
        <source>背光速度+</source>
        <translation>Velocità effetto +</translation>
    </message>
    <message>
        <source>背光方向循环</source>
        <translation>Ciclo direzione</translation>
    </message>
    <message>
        <source>背光向左</source>
        <translation>Effetto a sinistra</translation>
    </message>
    <message>
        <source>背光向右</source>
        <translation>Effetto a destra</translation>
    </message>
    <message>
        <source>背光颜色循环</source>
        <translation>Ciclo colori</translation>
    </message>
    <message>
        <source>背光颜色+</source>
        <translation>Colore tasti +</translation>
    </message>
    <message>
        <source>背光颜色-</source>
        <translation>Colore tasti -</translation>
    </message>
    <message>
        <source>Use Pic 0</source>
        <translation>Usa immagine 0</translation>
    </message>
    <message>
        <source>Use Pic 1</source>
        <translation>Usa immagine 1</translation>
    </message>
    <message>
        <source>Use Pic 2</source>
        <translation>Usa immagine 2</translation>
    </message>
    <message>
        <source>Use Pic 3</source>
        <translation>Usa immagine 3</translation>
    </message>
    <message>
        <source>Use Pic 4</source>
        <translation>Usa immagine 4</translation>
    </message>
    <message>
        <source>Use Pic</source>
        <translation>Usa immagine</translation>
    </message>
    <message>
        <source>侧光开/关</source>
        <translation>Luce laterale on/off</translation>
    </message>
    <message>
        <source>侧光亮度循环</source>
        <translation>Ciclo luminosità laterale</translation>
    </message>
    <message>
        <source>侧光速度循环</source>
        <translation>Ciclo velocità laterale</translation>
    </message>
    <message>
        <source>侧光速度+</source>
        <translation>Velocità laterale +</translation>
    </message>
    <message>
        <source>侧光速度-</source>
        <translation>Velocità laterale -</translation>
    </message>
    <message>
        <source>侧光颜色循环</source>
        <translation>Ciclo colori laterale</translation>
    </message>
    <message>
        <source>侧光颜色+</source>
        <translation>Colore laterale +</translation>
    </message>
    <message>
        <source>侧光颜色-</source>
        <translation>Colore laterale -</translation>
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
        <translation>Cablato</translation>
    </message>
    <message>
        <source>有线-蓝牙-2.4G</source>
        <translation>Cavo-Bluetooth-2.4G</translation>
    </message>
    <message>
        <source>2.4G配对</source>
        <translation>Associazione 2.4G</translation>
    </message>
    <message>
        <source>蓝牙配对</source>
        <translation>Associazione Bluetooth</translation>
    </message>
    <message>
        <source>Insert键</source>
        <translation>Tasto Ins</translation>
    </message>
    <message>
        <source>Print Screen键</source>
        <translation>Tasto Stamp</translation>
    </message>
    <message>
        <source>左键单击</source>
        <translation>Clic sinistro</translation>
    </message>
    <message>
        <source>右键单击</source>
        <translation>Clic destro</translation>
    </message>
    <message>
        <source>中键按下</source>
        <translation>Clic centrale</translation>
    </message>
    <message>
        <source>光标前进</source>
        <translation>Mouse avanti</translation>
    </message>
    <message>
        <source>光标后退</source>
        <translation>Mouse indietro</translation>
    </message>
    <message>
        <source>滚轮-向左</source>
        <translation>Rotella a sinistra</translation>
    </message>
    <message>
        <source>滚轮-向右</source>
        <translation>Rotella a destra</translation>
    </message>
    <message>
        <source>滚轮-向上</source>
        <translation>Rotella su</translation>
    </message>
    <message>
        <source>滚轮-向下</source>
        <translation>Rotella giù</translation>
    </message>
    <message>
        <source>向上滚屏</source>
        <translation>Scorri su</translation>
    </message>
    <message>
        <source>向下滚屏</source>
        <translation>Scorri giù</translation>
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
        <translation>Impostazioni macro</translation>
    </message>
    <message>
        <source>功能</source>
        <translation>Funzione</translation>
    </message>
    <message>
        <source>鼠标</source>
        <translation>Mouse</translation>
    </message>
    <message>
        <source>组合</source>
        <translation>Combinazione</translation>
    </message>
</context>
<context>
    <name>ModuleGeneralMasker</name>
    <message>
        <source>对话框</source>
        <translation>Finestra di dialogo</translation>
    </message>
</context>
<context>
    <name>ModuleKeyboard</name>
    <message>
        <source>屏幕键盘</source>
        <translation>Tastiera su schermo</translation>
    </message>
    <message>
        <source>已选中按键</source>
        <translation>Tasto selezionato</translation>
    </message>
    <message>
        <source>已修改按键</source>
        <translation>Tasto modificato</translation>
    </message>
    <message>
        <source>已禁用按键</source>
        <translation>Tasto disattivato</translation>
    </message>
    <message>
        <source>取消禁用</source>
        <translation>Riattiva tasto</translation>
    </message>
    <message>
        <source>清除设置</source>
        <translation>Cancella</translation>
    </message>
    <message>
        <source>禁用按键</source>
        <translation>Disattiva tasto</translation>
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
        <translation>Rotella dei valori</translation>
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
        <translation>Guida Orbe 7090: macro</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Sì</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;No</translation>
    </message>
</context>
<context>
    <name>ToggleButton</name>
    <message>
        <source>开关</source>
        <translation>Interruttore</translation>
    </message>
</context>
</TS>
