<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="zh_CN">
<context>
    <name>ColorSlider</name>
    <message>
        <source>色相</source>
        <translation>Tonalità</translation>
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
    <name>DeadZonePage</name>
    <message>
        <source>死区设置</source>
        <translation>Zone morte</translation>
    </message>
    <message>
        <source>按键死区设定</source>
        <translation>Zone morte dei tasti</translation>
    </message>
    <message>
        <source>触底到抬起前的距离俗称“死区”。死区可减少磁轴因环境干扰带来的断触问题，磁轴的底部可自定义，您可根据个人需求自定义死区，设定之后，此段行程不会触发。</source>
        <translation>La distanza tra il fondo e la risalita si chiama «zona morta». Riduce le interruzioni dello switch magnetico dovute a interferenze. Regolala come preferisci: in questo tratto non si attiva nulla.</translation>
    </message>
    <message>
        <source>设置</source>
        <translation>Applica</translation>
    </message>
    <message>
        <source>顶部死区</source>
        <translation>Zona morta superiore</translation>
    </message>
    <message>
        <source>底部死区</source>
        <translation>Zona morta inferiore</translation>
    </message>
    <message>
        <source>按键顶部不触发的距离，可防误触</source>
        <translation>Corsa in alto senza effetto, contro le pressioni accidentali</translation>
    </message>
    <message>
        <source>按键底部不响应的距离，可防抖动</source>
        <translation>Corsa in basso senza effetto, contro le oscillazioni del tasto premuto</translation>
    </message>
</context>
<context>
    <name>DemoBoard</name>
    <message>
        <source>没有插入键盘</source>
        <translation>Nessuna tastiera collegata</translation>
    </message>
    <message>
        <source>虚拟键盘的灯光</source>
        <translation>Illuminazione della tastiera virtuale</translation>
    </message>
    <message>
        <source>虚拟键盘</source>
        <translation>Tastiera virtuale</translation>
    </message>
    <message>
        <source>单击按键即可按下它，部分灯效会作出反应。</source>
        <translation>Fai clic su un tasto per premerlo; alcuni effetti reagiscono.</translation>
    </message>
    <message>
        <source>灯光已关闭</source>
        <translation>Illuminazione spenta</translation>
    </message>
    <message>
        <source>%1 · 亮度 %2% · 速度 %3%</source>
        <translation>%1 · luminosità %2% · velocità %3%</translation>
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
    <message>
        <source>依次按下所有按键</source>
        <translation>Premi tutti i tasti uno dopo l’altro</translation>
    </message>
    <message>
        <source>显示键盘的灯光</source>
        <translation>Mostra l’illuminazione della tastiera</translation>
    </message>
</context>
<context>
    <name>DeviceOptionsPanel</name>
    <message>
        <source>键盘回报率</source>
        <translation>Frequenza di polling</translation>
    </message>
    <message>
        <source>2.4G关闭背光</source>
        <translation>2.4G: spegni luce</translation>
    </message>
    <message>
        <source>蓝牙关闭背光</source>
        <translation>Bluetooth: spegni luce</translation>
    </message>
    <message>
        <source>2.4G深度睡眠时间</source>
        <translation>Sospensione profonda 2.4G</translation>
    </message>
    <message>
        <source>分钟</source>
        <translation>min</translation>
    </message>
    <message>
        <source>蓝牙深度睡眠时间</source>
        <translation>Sospensione profonda Bluetooth</translation>
    </message>
    <message>
        <source>按键防抖等级设置</source>
        <translation>Livello antirimbalzo</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>键盘每秒向电脑报告的次数，越高延迟越低</source>
        <translation>Quante volte al secondo la tastiera comunica con il computer; più è alto, minore è la latenza</translation>
    </message>
    <message>
        <source>不按键多久后关闭背光</source>
        <translation>Tempo senza premere tasti dopo il quale la retroilluminazione si spegne</translation>
    </message>
    <message>
        <source>不按键多久后进入深度睡眠，可省电</source>
        <translation>Tempo senza premere tasti prima della sospensione profonda, che risparmia batteria</translation>
    </message>
    <message>
        <source>级别越高越能避免连击，但会增加延迟</source>
        <translation>Un livello più alto evita meglio le doppie pressioni, ma aumenta la latenza</translation>
    </message>
</context>
<context>
    <name>DeviceTrouble</name>
    <message>
        <source>系统不允许访问此键盘。请将 70-orbehub.rules 复制到 /etc/udev/rules.d，然后重新插拔键盘。</source>
        <translation>Il sistema non consente l’accesso a questa tastiera. Copia 70-orbehub.rules in /etc/udev/rules.d e ricollega la tastiera.</translation>
    </message>
    <message>
        <source>系统不允许访问此键盘。请检查您的用户权限，然后重新插拔键盘。</source>
        <translation>Il sistema non consente l’accesso a questa tastiera. Controlla i tuoi permessi utente e ricollega la tastiera.</translation>
    </message>
    <message>
        <source>已断开</source>
        <translation>Scollegata</translation>
    </message>
    <message>
        <source>键盘已断开，重新连接后即可使用。</source>
        <translation>La tastiera è scollegata. Ricollegala per usarla.</translation>
    </message>
    <message>
        <source>没有响应</source>
        <translation>Non risponde</translation>
    </message>
    <message>
        <source>键盘没有响应，可能处于休眠状态，请按任意键唤醒。</source>
        <translation>La tastiera non risponde. Forse è in standby: premi un tasto per riattivarla.</translation>
    </message>
    <message>
        <source>没有访问权限</source>
        <translation>Accesso negato</translation>
    </message>
    <message>
        <source>无法打开</source>
        <translation>Impossibile aprire</translation>
    </message>
    <message>
        <source>无法打开键盘，可能正被其他程序占用。请关闭该程序后重新插拔键盘。</source>
        <translation>Impossibile aprire la tastiera. Forse la sta usando un altro programma: chiudilo e ricollega la tastiera.</translation>
    </message>
    <message>
        <source>键盘</source>
        <translation>Tastiera</translation>
    </message>
</context>
<context>
    <name>DialogColorPicker</name>
    <message>
        <source>取色器</source>
        <translation>Selettore colore</translation>
    </message>
    <message>
        <source>按住并拖到屏幕上的任意位置取色</source>
        <translation>Tieni premuto e trascina in un punto qualsiasi dello schermo per prelevare un colore</translation>
    </message>
    <message>
        <source>完成</source>
        <translation>Fine</translation>
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
    <name>DialogFNPicker</name>
    <message>
        <source>组合键</source>
        <translation>Combinazione di tasti</translation>
    </message>
    <message>
        <source>基本字符</source>
        <translation>Tasti di base</translation>
    </message>
    <message>
        <source>拓展字符(按键)</source>
        <translation>Tasti estesi</translation>
    </message>
    <message>
        <source>宏设置</source>
        <translation>Macro</translation>
    </message>
    <message>
        <source>播放方式:</source>
        <translation>Modalità di riproduzione:</translation>
    </message>
    <message>
        <source>循环次数</source>
        <translation>Ripetizioni</translation>
    </message>
    <message>
        <source>自动</source>
        <translation>Automatico</translation>
    </message>
    <message>
        <source>按下</source>
        <translation>Pressione</translation>
    </message>
    <message>
        <source>系统功能</source>
        <translation>Funzioni di sistema</translation>
    </message>
    <message>
        <source>鼠标功能</source>
        <translation>Funzioni del mouse</translation>
    </message>
    <message>
        <source>设置功能为:</source>
        <translation>Imposta funzione:</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>左键</source>
        <translation>Sinistro</translation>
    </message>
    <message>
        <source>右键</source>
        <translation>Destro</translation>
    </message>
    <message>
        <source>中键</source>
        <translation>Centrale</translation>
    </message>
    <message>
        <source>前移</source>
        <translation>Avanti</translation>
    </message>
    <message>
        <source>后移</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>左滚</source>
        <translation>Rotella a sinistra</translation>
    </message>
    <message>
        <source>右滚</source>
        <translation>Rotella a destra</translation>
    </message>
    <message>
        <source>上滚</source>
        <translation>Rotella su</translation>
    </message>
    <message>
        <source>下滚</source>
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
        <source>自定义按键</source>
        <translation>Tasti personalizzati</translation>
    </message>
    <message>
        <source>宏</source>
        <translation>Macro </translation>
    </message>
    <message>
        <source>未录制的宏</source>
        <translation>Macro non registrata</translation>
    </message>
</context>
<context>
    <name>DialogVKPicker</name>
    <message>
        <source>基本字符</source>
        <translation>Tasti di base</translation>
    </message>
    <message>
        <source>拓展字符</source>
        <translation>Tasti estesi</translation>
    </message>
    <message>
        <source>组合键：</source>
        <translation>Combinazione di tasti:</translation>
    </message>
    <message>
        <source>确认</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>组合键</source>
        <translation>Combinazione di tasti</translation>
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
        <translation>Switch magnetici</translation>
    </message>
    <message>
        <source>宏设置</source>
        <translation>Macro</translation>
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
        <translation>Calibrazione</translation>
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
    <name>FrameKeySetting</name>
    <message>
        <source>自定义</source>
        <translation>Personalizzato</translation>
    </message>
    <message>
        <source>高级键</source>
        <translation>Avanzati</translation>
    </message>
    <message>
        <source>其他设置</source>
        <translation>Altro</translation>
    </message>
    <message>
        <source>Fn层设置</source>
        <translation>Livello Fn</translation>
    </message>
    <message>
        <source>自定义/Fn层设置</source>
        <translation>Personalizzato / livello Fn</translation>
    </message>
    <message>
        <source>*首先点击选择上方按键，在弹出的对话框中可选择组合键、宏设置、系统功能、鼠标功能进行改建设置</source>
        <translation>*Fai prima clic su un tasto in alto, poi scegli nella finestra una combinazione, una macro, una funzione di sistema o del mouse</translation>
    </message>
    <message>
        <source>*右键点击按键可清除设置、禁用按键或取消禁用</source>
        <translation>*Fai clic destro su un tasto per cancellarne l’impostazione, disattivarlo o riattivarlo</translation>
    </message>
    <message>
        <source>动态键程(DKS)</source>
        <translation>Corsa dinamica (DKS)</translation>
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
        <translation>Tasti del livello Fn</translation>
    </message>
    <message>
        <source>自定义按键</source>
        <translation>Tasti personalizzati</translation>
    </message>
</context>
<context>
    <name>FrameLight</name>
    <message>
        <source>点击按键上色，拖动可给多个按键上色</source>
        <translation>Fai clic su un tasto per colorarlo o trascina su più tasti</translation>
    </message>
    <message>
        <source>我的作品</source>
        <translation>I miei lavori</translation>
    </message>
    <message>
        <source>颜色:</source>
        <translation>Colore:</translation>
    </message>
    <message>
        <source>取色器：</source>
        <translation>Selettore colore:</translation>
    </message>
    <message>
        <source>随机颜色：</source>
        <translation>Colore casuale:</translation>
    </message>
    <message>
        <source>清除设置</source>
        <translation>Cancella</translation>
    </message>
    <message>
        <source>写入层(图):</source>
        <translation>Scrivi nel livello:</translation>
    </message>
    <message>
        <source>图1</source>
        <translation>Imm. 1</translation>
    </message>
    <message>
        <source>图2</source>
        <translation>Imm. 2</translation>
    </message>
    <message>
        <source>图3</source>
        <translation>Imm. 3</translation>
    </message>
    <message>
        <source>图4</source>
        <translation>Imm. 4</translation>
    </message>
    <message>
        <source>图5</source>
        <translation>Imm. 5</translation>
    </message>
    <message>
        <source>读取层(图):</source>
        <translation>Leggi dal livello:</translation>
    </message>
    <message>
        <source>作品名称:</source>
        <translation>Nome:</translation>
    </message>
    <message>
        <source>更新</source>
        <translation>Aggiorna</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>还没有作品，给按键上色后点击“保存”</source>
        <translation>Ancora nessun lavoro. Colora alcuni tasti e premi Salva</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Avviso</translation>
    </message>
    <message>
        <source>确认要删除此作品吗？</source>
        <translation>Eliminare questo lavoro?</translation>
    </message>
    <message>
        <source>我的作品%1</source>
        <translation>Il mio lavoro %1</translation>
    </message>
    <message>
        <source>作品已保存</source>
        <translation>Lavoro salvato</translation>
    </message>
    <message>
        <source>把现在的颜色写入键盘的这一层</source>
        <translation>Salva i colori mostrati in questo livello della tastiera</translation>
    </message>
    <message>
        <source>显示键盘这一层里的颜色</source>
        <translation>Mostra i colori che la tastiera ha in questo livello</translation>
    </message>
</context>
<context>
    <name>FrameMacro</name>
    <message>
        <source>宏设置</source>
        <translation>Macro</translation>
    </message>
    <message>
        <source>抬起</source>
        <translation>Rilascio</translation>
    </message>
    <message>
        <source>按下</source>
        <translation>Pressione</translation>
    </message>
    <message>
        <source>延迟</source>
        <translation>Ritardo</translation>
    </message>
    <message>
        <source>开始录制</source>
        <translation>Avvia registrazione</translation>
    </message>
    <message>
        <source>插入</source>
        <translation>Inserisci</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>清空</source>
        <translation>Svuota</translation>
    </message>
    <message>
        <source>设置固定延迟(ms):</source>
        <translation>Ritardo fisso (ms):</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>新建宏</source>
        <translation>Nuova macro</translation>
    </message>
    <message>
        <source>停止录制</source>
        <translation>Ferma registrazione</translation>
    </message>
    <message>
        <source>点击“开始录制”后按下按键，或点击“插入”添加事件</source>
        <translation>Fai clic su «Avvia registrazione» e premi i tasti, oppure su «Inserisci» per aggiungere un evento</translation>
    </message>
    <message>
        <source>请在左侧选择一个宏</source>
        <translation>Scegli una macro a sinistra</translation>
    </message>
    <message>
        <source>占用</source>
        <translation>Usati</translation>
    </message>
    <message>
        <source>字节</source>
        <translation>byte</translation>
    </message>
    <message>
        <source>录制键盘和鼠标按键，再次点击结束</source>
        <translation>Registra tasti e pulsanti del mouse fino alla pressione successiva</translation>
    </message>
    <message>
        <source>把所有延迟都设为右侧的值</source>
        <translation>Imposta tutti i ritardi sul valore a destra</translation>
    </message>
</context>
<context>
    <name>FrameMagic</name>
    <message>
        <source>行程设置</source>
        <translation>Punto di attuazione</translation>
    </message>
    <message>
        <source>死区设置</source>
        <translation>Zone morte</translation>
    </message>
    <message>
        <source>轴体设置</source>
        <translation>Tipo di switch</translation>
    </message>
    <message>
        <source>增稳算法</source>
        <translation>Stabilizzazione</translation>
    </message>
    <message>
        <source>模拟测试</source>
        <translation>Test</translation>
    </message>
    <message>
        <source>已选中按键的数量</source>
        <translation>Tasti selezionati</translation>
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
        <translation>Switch meccanico</translation>
    </message>
    <message>
        <source>凯华轴</source>
        <translation>Switch Kailh</translation>
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
        <translation>Magnetico a basso profilo</translation>
    </message>
    <message>
        <source>星芒磁轴</source>
        <translation>Starburst</translation>
    </message>
    <message>
        <source>白泽轴</source>
        <translation>Switch Baize</translation>
    </message>
    <message>
        <source>自定义</source>
        <translation>Personalizzato</translation>
    </message>
</context>
<context>
    <name>FrameMain</name>
    <message>
        <source>键程设置(全局)</source>
        <translation>Punto di attuazione (globale)</translation>
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
    <name>KeyBubble</name>
    <message>
        <source>系统按键</source>
        <translation>Tasto di sistema</translation>
    </message>
    <message>
        <source>动态键程</source>
        <translation>Corsa dinamica</translation>
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
        <translation>Macro</translation>
    </message>
</context>
<context>
    <name>KeyTestPage</name>
    <message>
        <source>行程测试</source>
        <translation>Test corsa</translation>
    </message>
    <message>
        <source>按键测试</source>
        <translation>Test tasti</translation>
    </message>
    <message>
        <source>输入值</source>
        <translation>Input</translation>
    </message>
    <message>
        <source>按下任意按键。无线连接下没有实时行程数据。</source>
        <translation>Premi un tasto. In wireless non ci sono dati di corsa in tempo reale.</translation>
    </message>
</context>
<context>
    <name>LightWorksModel</name>
    <message>
        <source>删除</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>预览图,作品名称,管理</source>
        <translation>Anteprima,Nome,Gestisci</translation>
    </message>
</context>
<context>
    <name>LinearFixing1</name>
    <message>
        <source>行程校准操作指南</source>
        <translation>Guida alla calibrazione della corsa</translation>
    </message>
    <message>
        <source>请依次将每个按键轻按到底并停留至少1秒钟，直到按键变为橙色（表示该按键校准成功），请勿遗漏，可重复按按键。无线下不支持按键校准个数提示。校准过程中请勿拔出数据线。</source>
        <translation>Premi delicatamente ogni tasto fino in fondo, uno dopo l’altro, e tienilo premuto per almeno 1 secondo finché diventa arancione (tasto calibrato). Non saltarne nessuno; puoi premere di nuovo un tasto. In wireless il numero di tasti calibrati non viene mostrato. Non scollegare il cavo durante la calibrazione.</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>开始校准</source>
        <translation>Avvia calibrazione</translation>
    </message>
</context>
<context>
    <name>LinearFixing2</name>
    <message>
        <source>行程校准</source>
        <translation>Calibrazione</translation>
    </message>
    <message>
        <source>请依次将每个按键轻按到底并停留至少1秒钟，直到按键变为橙色（表示该按键校准成功），请勿遗漏，可重复按按键。无线下不支持按键校准个数提示。校准过程中请勿拔出数据线。</source>
        <translation>Premi delicatamente ogni tasto fino in fondo, uno dopo l’altro, e tienilo premuto per almeno 1 secondo finché diventa arancione (tasto calibrato). Non saltarne nessuno; puoi premere di nuovo un tasto. In wireless il numero di tasti calibrati non viene mostrato. Non scollegare il cavo durante la calibrazione.</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>完成校准</source>
        <translation>Termina calibrazione</translation>
    </message>
</context>
<context>
    <name>MacroItem</name>
    <message>
        <source>重命名</source>
        <translation>Rinomina</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Elimina</translation>
    </message>
</context>
<context>
    <name>MacroSquare</name>
    <message>
        <source>插入</source>
        <translation>Inserisci</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>延迟</source>
        <translation>Ritardo</translation>
    </message>
    <message>
        <source>左键</source>
        <translation>Sinistro</translation>
    </message>
    <message>
        <source>右键</source>
        <translation>Destro</translation>
    </message>
    <message>
        <source>中键</source>
        <translation>Centrale</translation>
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
        <translation>I miei dispositivi </translation>
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
    <name>MessageBox</name>
    <message>
        <source>是</source>
        <translation>Sì</translation>
    </message>
    <message>
        <source>否</source>
        <translation>No</translation>
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
    <name>ModuleAddMacroSquare</name>
    <message>
        <source>请选择添加宏事件类型</source>
        <translation>Scegli il tipo di evento macro</translation>
    </message>
    <message>
        <source>键盘按键</source>
        <translation>Tasto</translation>
    </message>
    <message>
        <source>请按下按键......</source>
        <translation>Premi un tasto…</translation>
    </message>
    <message>
        <source>鼠标按键</source>
        <translation>Pulsante del mouse</translation>
    </message>
    <message>
        <source>左键</source>
        <translation>Sinistro</translation>
    </message>
    <message>
        <source>中键</source>
        <translation>Centrale</translation>
    </message>
    <message>
        <source>右键</source>
        <translation>Destro</translation>
    </message>
    <message>
        <source>鼠标位置</source>
        <translation>Posizione del mouse</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Annulla</translation>
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
        <translation>Corsa (mm)</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Salva</translation>
    </message>
</context>
<context>
    <name>ModuleDKSItem</name>
    <message>
        <source>按下触发</source>
        <translation>Premuto oltre l’attuazione</translation>
    </message>
    <message>
        <source>按到底部</source>
        <translation>A fine corsa</translation>
    </message>
    <message>
        <source>离开底部</source>
        <translation>Staccato dal fondo</translation>
    </message>
    <message>
        <source>回到顶部</source>
        <translation>Di nuovo in cima</translation>
    </message>
    <message>
        <source>未设置功能</source>
        <translation>Non impostata</translation>
    </message>
    <message>
        <source>已开启</source>
        <translation>Attivo</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Spento</translation>
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
        <translation>Premuto oltre l’attuazione</translation>
    </message>
    <message>
        <source>按到底部</source>
        <translation>A fine corsa</translation>
    </message>
    <message>
        <source>离开底部</source>
        <translation>Staccato dal fondo</translation>
    </message>
    <message>
        <source>回到顶部</source>
        <translation>Di nuovo in cima</translation>
    </message>
</context>
<context>
    <name>ModuleEfColor</name>
    <message>
        <source>系统默认</source>
        <translation>Predefiniti</translation>
    </message>
    <message>
        <source>自定义</source>
        <translation>Personalizzato</translation>
    </message>
    <message>
        <source>单键</source>
        <translation>Tasto singolo</translation>
    </message>
    <message>
        <source>灯带灯效设置</source>
        <translation>Striscia luminosa</translation>
    </message>
    <message>
        <source>灯效：</source>
        <translation>Effetto:</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Spento</translation>
    </message>
    <message>
        <source>常亮</source>
        <translation>Fisso</translation>
    </message>
    <message>
        <source>呼吸</source>
        <translation>Respiro</translation>
    </message>
    <message>
        <source>川流不息</source>
        <translation>Corrente</translation>
    </message>
    <message>
        <source>霓虹</source>
        <translation>Neon</translation>
    </message>
    <message>
        <source>光波</source>
        <translation>Onda di luce</translation>
    </message>
    <message>
        <source>色彩：</source>
        <translation>Colore:</translation>
    </message>
    <message>
        <source>炫彩</source>
        <translation>RGB</translation>
    </message>
    <message>
        <source>亮度：</source>
        <translation>Luminosità:</translation>
    </message>
    <message>
        <source>速度：</source>
        <translation>Velocità:</translation>
    </message>
    <message>
        <source>颜色%1</source>
        <translation>Colore %1</translation>
    </message>
    <message>
        <source>取色器</source>
        <translation>Selettore colore</translation>
    </message>
</context>
<context>
    <name>ModuleEfLumi</name>
    <message>
        <source>灯光亮度</source>
        <translation>Luminosità</translation>
    </message>
</context>
<context>
    <name>ModuleEfMode</name>
    <message>
        <source>灯效模式</source>
        <translation>Modalità luce</translation>
    </message>
    <message>
        <source>关灯</source>
        <translation>Spegni</translation>
    </message>
    <message>
        <source>灯光播放模式:</source>
        <translation>Riproduzione:</translation>
    </message>
    <message>
        <source>常亮</source>
        <translation>Fisso</translation>
    </message>
    <message>
        <source>呼吸</source>
        <translation>Respiro</translation>
    </message>
    <message>
        <source>流星</source>
        <translation>Meteora</translation>
    </message>
    <message>
        <source>涟漪</source>
        <translation>Increspatura</translation>
    </message>
    <message>
        <source>极光</source>
        <translation>Aurora</translation>
    </message>
    <message>
        <source>雨滴</source>
        <translation>Gocce di pioggia</translation>
    </message>
    <message>
        <source>聚合</source>
        <translation>Convergenza</translation>
    </message>
    <message>
        <source>川流不息</source>
        <translation>Corrente</translation>
    </message>
    <message>
        <source>霓虹</source>
        <translation>Neon</translation>
    </message>
    <message>
        <source>光波</source>
        <translation>Onda di luce</translation>
    </message>
    <message>
        <source>繁星点点</source>
        <translation>Cielo stellato</translation>
    </message>
    <message>
        <source>如影随形</source>
        <translation>Ombra</translation>
    </message>
    <message>
        <source>正弦波</source>
        <translation>Onda sinusoidale</translation>
    </message>
    <message>
        <source>彩泉涌动</source>
        <translation>Fontana di colori</translation>
    </message>
    <message>
        <source>百花争艳</source>
        <translation>Fioritura</translation>
    </message>
    <message>
        <source>一石二鸟</source>
        <translation>Due piccioni</translation>
    </message>
    <message>
        <source>峰回路转</source>
        <translation>Sentiero tortuoso</translation>
    </message>
    <message>
        <source>斜风细雨</source>
        <translation>Pioggerella</translation>
    </message>
    <message>
        <source>踏雪无痕</source>
        <translation>Neve senza tracce</translation>
    </message>
    <message>
        <source>层出不穷</source>
        <translation>Strati</translation>
    </message>
    <message>
        <source>光影</source>
        <translation>Luci e ombre</translation>
    </message>
    <message>
        <source>音乐律动</source>
        <translation>Ritmo musicale</translation>
    </message>
    <message>
        <source>自定义</source>
        <translation>Personalizzato</translation>
    </message>
    <message>
        <source>左</source>
        <translation>Sinistra</translation>
    </message>
    <message>
        <source>右</source>
        <translation>Destra</translation>
    </message>
    <message>
        <source>上</source>
        <translation>Su</translation>
    </message>
    <message>
        <source>下</source>
        <translation>Giù</translation>
    </message>
    <message>
        <source>Z形</source>
        <translation>A Z</translation>
    </message>
    <message>
        <source>回形</source>
        <translation>Spirale</translation>
    </message>
    <message>
        <source>向内</source>
        <translation>Verso l’interno</translation>
    </message>
    <message>
        <source>向外</source>
        <translation>Verso l’esterno</translation>
    </message>
    <message>
        <source>向右</source>
        <translation>Verso destra</translation>
    </message>
    <message>
        <source>向左</source>
        <translation>Verso sinistra</translation>
    </message>
    <message>
        <source>图案1</source>
        <translation>Immagine 1</translation>
    </message>
    <message>
        <source>图案2</source>
        <translation>Immagine 2</translation>
    </message>
    <message>
        <source>图案3</source>
        <translation>Immagine 3</translation>
    </message>
    <message>
        <source>图案4</source>
        <translation>Immagine 4</translation>
    </message>
    <message>
        <source>图案5</source>
        <translation>Immagine 5</translation>
    </message>
    <message>
        <source>顺时针</source>
        <translation>Senso orario</translation>
    </message>
    <message>
        <source>逆时针</source>
        <translation>Senso antiorario</translation>
    </message>
    <message>
        <source>无</source>
        <translation>Nessuno</translation>
    </message>
</context>
<context>
    <name>ModuleEfSpeed</name>
    <message>
        <source>灯光速度</source>
        <translation>Velocità</translation>
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
        <translation>Volume&#xa0;+</translation>
    </message>
    <message>
        <source>音量-</source>
        <translation>Volume&#xa0;−</translation>
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
        <translation>Questo PC</translation>
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
        <translation>Luminosità schermo&#xa0;+</translation>
    </message>
    <message>
        <source>亮度-</source>
        <translation>Luminosità schermo&#xa0;−</translation>
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
        <translation>Ciclo DPI</translation>
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
        <translation>Valore profilo</translation>
    </message>
    <message>
        <source>Profile+</source>
        <translation>Profilo&#xa0;+</translation>
    </message>
    <message>
        <source>Profile-</source>
        <translation>Profilo&#xa0;−</translation>
    </message>
    <message>
        <source>Profile-Loop</source>
        <translation>Ciclo profili</translation>
    </message>
    <message>
        <source>Profile-1</source>
        <translation>Profilo 1</translation>
    </message>
    <message>
        <source>Profile-2</source>
        <translation>Profilo 2</translation>
    </message>
    <message>
        <source>Profile-3</source>
        <translation>Profilo 3</translation>
    </message>
    <message>
        <source>Profile-4</source>
        <translation>Profilo 4</translation>
    </message>
    <message>
        <source>Profile-5</source>
        <translation>Profilo 5</translation>
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
        <translation>Effetto&#xa0;+</translation>
    </message>
    <message>
        <source>背光灯效-</source>
        <translation>Effetto&#xa0;−</translation>
    </message>
    <message>
        <source>背光亮度循环</source>
        <translation>Ciclo luminosità</translation>
    </message>
    <message>
        <source>背光亮度+</source>
        <translation>Luminosità tasti&#xa0;+</translation>
    </message>
    <message>
        <source>背光亮度-</source>
        <translation>Luminosità tasti&#xa0;−</translation>
    </message>
    <message>
        <source>背光速度循环</source>
        <translation>Ciclo velocità</translation>
    </message>
    <message>
        <source>背光速度-</source>
        <translation>Velocità effetto&#xa0;−</translation>
    </message>
    <message>
        <source>背光速度+</source>
        <translation>Velocità effetto&#xa0;+</translation>
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
        <translation>Colore tasti&#xa0;+</translation>
    </message>
    <message>
        <source>背光颜色-</source>
        <translation>Colore tasti&#xa0;−</translation>
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
        <translation>Velocità laterale&#xa0;+</translation>
    </message>
    <message>
        <source>侧光速度-</source>
        <translation>Velocità laterale&#xa0;−</translation>
    </message>
    <message>
        <source>侧光颜色循环</source>
        <translation>Ciclo colori laterale</translation>
    </message>
    <message>
        <source>侧光颜色+</source>
        <translation>Colore laterale&#xa0;+</translation>
    </message>
    <message>
        <source>侧光颜色-</source>
        <translation>Colore laterale&#xa0;−</translation>
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
        <translation>Cablato-Bluetooth-2.4G</translation>
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
        <translation>Macro</translation>
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
    <name>ModuleLinear</name>
    <message>
        <source>按下(mm)</source>
        <translation>Attuazione (mm)</translation>
    </message>
    <message>
        <source>抬起(mm)</source>
        <translation>Rilascio (mm)</translation>
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
        <translation>Seleziona un tasto in alto e assegnagli due funzioni, una per il tocco e una per la pressione lunga (combinazioni supportate)</translation>
    </message>
    <message>
        <source>单击</source>
        <translation>Tocca</translation>
    </message>
    <message>
        <source>按住</source>
        <translation>Tieni</translation>
    </message>
    <message>
        <source>调整触发“按住&quot;键所需的时间</source>
        <translation>Regola il tempo per attivare «Tieni»</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>按住超过这段时间才执行“按住”的功能</source>
        <translation>Tenuto più a lungo, il tasto esegue la funzione «Tieni»</translation>
    </message>
</context>
<context>
    <name>ModuleMacroManager</name>
    <message>
        <source>新建宏</source>
        <translation>Nuova macro </translation>
    </message>
</context>
<context>
    <name>ModuleRtSet</name>
    <message>
        <source>RT行程设置(全局)</source>
        <translation>Sensibilità RT (globale)</translation>
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
    <name>ModuleSnapTab</name>
    <message>
        <source>绑定2个选定按键(分别从上面选择)，当两个按键被同时按下时，以最后按下的按键为准</source>
        <translation>Abbina 2 tasti (scegli ciascuno in alto): se premuti insieme vale l’ultimo premuto (SOCD)</translation>
    </message>
    <message>
        <source>选择A键</source>
        <translation>Scegli tasto A</translation>
    </message>
    <message>
        <source>选择B键</source>
        <translation>Scegli tasto B</translation>
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
        <translation>Seleziona un tasto in alto e imposta la funzione in una di due modalità: ripeti o tieni premuto</translation>
    </message>
    <message>
        <source>连点</source>
        <translation>Ripeti</translation>
    </message>
    <message>
        <source>长按</source>
        <translation>Tieni premuto</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>未设置功能</source>
        <translation>Non impostata</translation>
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
        <translation>Guida Orbe 7090: macro</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Select All</source>
        <translation>&amp;Seleziona tutto</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>A&amp;umenta</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>&amp;Diminuisci</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>A&amp;nnulla</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Ripeti</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Taglia</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copia</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Incolla</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleziona tutto</translation>
    </message>
</context>
<context>
    <name>ShellNotices</name>
    <message>
        <source>重试</source>
        <translation>Riprova</translation>
    </message>
</context>
<context>
    <name>StabilityPage</name>
    <message>
        <source>RT Stab(RT 增稳算法)</source>
        <translation>RT Stab (stabilizzazione RT)</translation>
    </message>
    <message>
        <source>RT Stab打开后，算法会介入增强轴体底部的稳定性。介入百分比越大，稳定性越强，延迟也会有所增加。</source>
        <translation>Con RT Stab attivo l’algoritmo rende più stabile il fondo corsa. Una percentuale più alta è più stabile ma aggiunge un po’ di latenza.</translation>
    </message>
    <message>
        <source>0%(关闭)</source>
        <translation>0% (disattivo)</translation>
    </message>
    <message>
        <source>防误触模式</source>
        <translation>Protezione da pressioni accidentali</translation>
    </message>
    <message>
        <source>(已关闭)</source>
        <translation>(Disattivo)</translation>
    </message>
    <message>
        <source>防止极限性能下桌面抖动误触发或轴体公差可能造成还有0.1mm的行程公差。开启后优化底部按键算法补足行程差值提高键盘稳定性。</source>
        <translation>Evita attivazioni dovute alle vibrazioni del tavolo con impostazioni estreme e compensa tolleranze dello switch di 0,1 mm. Se attivo, l’algoritmo a fondo corsa compensa la differenza e rende la tastiera più stabile.</translation>
    </message>
    <message>
        <source>已开启</source>
        <translation>Attivo</translation>
    </message>
    <message>
        <source>已关闭</source>
        <translation>Disattivo</translation>
    </message>
</context>
<context>
    <name>SwitchTypePage</name>
    <message>
        <source>轴体设置</source>
        <translation>Tipo di switch</translation>
    </message>
    <message>
        <source>更换键盘轴体后，选择对应轴体的按键，点击下方对应的轴体选项进行设置来区分不同轴体</source>
        <translation>Dopo aver cambiato gli switch, scegli in basso il tipo corrispondente e fai clic sui tasti che lo montano</translation>
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
        <translation>Interruttore</translation>
    </message>
</context>
<context>
    <name>TravelPage</name>
    <message>
        <source>单独设置按下抬起触发行程：</source>
        <translation>Imposta attuazione e rilascio separatamente:</translation>
    </message>
    <message>
        <source>全程连续快速触发（RT）</source>
        <translation>Rapid Trigger continuo (RT)</translation>
    </message>
    <message>
        <source>启用时，快速触发在您完全松开按键时才会终止。
禁用时，松开按键到轴体触发行程后终止快速触发</source>
        <translation>Attivo: il Rapid Trigger termina solo al rilascio completo del tasto.
Disattivo: il Rapid Trigger termina quando il tasto risale oltre il punto di attuazione</translation>
    </message>
    <message>
        <source>单独设置按键再次按下触发和松开重置行程</source>
        <translation>Imposta pressione e rilascio RT separatamente</translation>
    </message>
    <message>
        <source>再次按下按键触发所需的行程(mm)</source>
        <translation>Corsa per riattivare il tasto (mm)</translation>
    </message>
    <message>
        <source>松开按键重置所需的行程(mm)</source>
        <translation>Corsa di reset al rilascio (mm)</translation>
    </message>
    <message>
        <source>设置</source>
        <translation>Applica</translation>
    </message>
    <message>
        <source>抬起后再按下这段距离即再次触发，越小越灵敏</source>
        <translation>Una pressione di questa distanza riattiva il tasto ovunque sia; più piccola è, più è sensibile</translation>
    </message>
    <message>
        <source>按下后抬起这段距离即释放，越小越灵敏</source>
        <translation>Un sollevamento di questa distanza rilascia il tasto ovunque sia; più piccola è, più è sensibile</translation>
    </message>
    <message>
        <source>按键按到多深时触发</source>
        <translation>Di quanto deve scendere un tasto prima di attivarsi</translation>
    </message>
    <message>
        <source>按键抬到多高时释放</source>
        <translation>Di quanto deve risalire un tasto prima di rilasciarsi</translation>
    </message>
</context>
<context>
    <name>TravelRuler</name>
    <message>
        <source>行程测试</source>
        <translation>Test corsa</translation>
    </message>
</context>
<context>
    <name>WorkMeter</name>
    <message>
        <source>正在读取键盘</source>
        <translation>Lettura tastiera</translation>
    </message>
    <message>
        <source>正在写入键盘</source>
        <translation>Scrittura tastiera</translation>
    </message>
</context>
</TS>
