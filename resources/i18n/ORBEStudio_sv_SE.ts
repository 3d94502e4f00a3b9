<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sv_SE" sourcelanguage="zh_CN">
<context>
    <name>ColorSlider</name>
    <message>
        <source>色相</source>
        <translation>Nyans</translation>
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
    <name>DeadZonePage</name>
    <message>
        <source>死区设置</source>
        <translation>Dödzoner</translation>
    </message>
    <message>
        <source>按键死区设定</source>
        <translation>Tangenternas dödzoner</translation>
    </message>
    <message>
        <source>触底到抬起前的距离俗称“死区”。死区可减少磁轴因环境干扰带来的断触问题，磁轴的底部可自定义，您可根据个人需求自定义死区，设定之后，此段行程不会触发。</source>
        <translation>Avståndet från botten tills tangenten lyfts kallas ”dödzon”. Den minskar avbrott i magnetswitchen på grund av störningar. Ställ in den efter behov; inom den utlöses ingenting.</translation>
    </message>
    <message>
        <source>设置</source>
        <translation>Använd</translation>
    </message>
    <message>
        <source>顶部死区</source>
        <translation>Övre dödzon</translation>
    </message>
    <message>
        <source>底部死区</source>
        <translation>Nedre dödzon</translation>
    </message>
    <message>
        <source>按键顶部不触发的距离，可防误触</source>
        <translation>Väg överst som inte gör något, mot oavsiktliga tryck</translation>
    </message>
    <message>
        <source>按键底部不响应的距离，可防抖动</source>
        <translation>Väg längst ned som inte gör något, mot fladder när tangenten hålls nere</translation>
    </message>
</context>
<context>
    <name>DemoBoard</name>
    <message>
        <source>没有插入键盘</source>
        <translation>Inget tangentbord anslutet</translation>
    </message>
    <message>
        <source>虚拟键盘的灯光</source>
        <translation>Det virtuella tangentbordets belysning</translation>
    </message>
    <message>
        <source>虚拟键盘</source>
        <translation>Virtuellt tangentbord</translation>
    </message>
    <message>
        <source>单击按键即可按下它，部分灯效会作出反应。</source>
        <translation>Klicka på en tangent för att trycka ned den; vissa effekter reagerar.</translation>
    </message>
    <message>
        <source>灯光已关闭</source>
        <translation>Belysning av</translation>
    </message>
    <message>
        <source>%1 · 亮度 %2% · 速度 %3%</source>
        <translation>%1 · ljusstyrka %2% · hastighet %3%</translation>
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
    <message>
        <source>依次按下所有按键</source>
        <translation>Tryck på alla tangenter i tur och ordning</translation>
    </message>
    <message>
        <source>显示键盘的灯光</source>
        <translation>Visa tangentbordets belysning</translation>
    </message>
</context>
<context>
    <name>DeviceOptionsPanel</name>
    <message>
        <source>键盘回报率</source>
        <translation>Pollingfrekvens</translation>
    </message>
    <message>
        <source>2.4G关闭背光</source>
        <translation>2.4G: släck ljuset</translation>
    </message>
    <message>
        <source>蓝牙关闭背光</source>
        <translation>Bluetooth: släck ljuset</translation>
    </message>
    <message>
        <source>2.4G深度睡眠时间</source>
        <translation>Djupvila 2.4G</translation>
    </message>
    <message>
        <source>分钟</source>
        <translation>min</translation>
    </message>
    <message>
        <source>蓝牙深度睡眠时间</source>
        <translation>Djupvila Bluetooth</translation>
    </message>
    <message>
        <source>按键防抖等级设置</source>
        <translation>Debounce-nivå</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>键盘每秒向电脑报告的次数，越高延迟越低</source>
        <translation>Hur många gånger per sekund tangentbordet rapporterar till datorn; högre ger mindre latens</translation>
    </message>
    <message>
        <source>不按键多久后关闭背光</source>
        <translation>Tid utan tangenttryck tills bakgrundsljuset släcks</translation>
    </message>
    <message>
        <source>不按键多久后进入深度睡眠，可省电</source>
        <translation>Tid utan tangenttryck tills tangentbordet går i djup vila, vilket sparar batteri</translation>
    </message>
    <message>
        <source>级别越高越能避免连击，但会增加延迟</source>
        <translation>En högre nivå hindrar dubbeltryck bättre men ökar latensen</translation>
    </message>
</context>
<context>
    <name>DeviceTrouble</name>
    <message>
        <source>系统不允许访问此键盘。请将 70-orbehub.rules 复制到 /etc/udev/rules.d，然后重新插拔键盘。</source>
        <translation>Systemet tillåter inte åtkomst till tangentbordet. Kopiera 70-orbehub.rules till /etc/udev/rules.d och anslut tangentbordet igen.</translation>
    </message>
    <message>
        <source>系统不允许访问此键盘。请检查您的用户权限，然后重新插拔键盘。</source>
        <translation>Systemet tillåter inte åtkomst till tangentbordet. Kontrollera dina användarrättigheter och anslut tangentbordet igen.</translation>
    </message>
    <message>
        <source>已断开</source>
        <translation>Frånkopplat</translation>
    </message>
    <message>
        <source>键盘已断开，重新连接后即可使用。</source>
        <translation>Tangentbordet är frånkopplat. Anslut det igen för att använda det.</translation>
    </message>
    <message>
        <source>没有响应</source>
        <translation>Svarar inte</translation>
    </message>
    <message>
        <source>键盘没有响应，可能处于休眠状态，请按任意键唤醒。</source>
        <translation>Tangentbordet svarar inte. Det kanske är i viloläge: tryck på valfri tangent för att väcka det.</translation>
    </message>
    <message>
        <source>没有访问权限</source>
        <translation>Ingen åtkomst</translation>
    </message>
    <message>
        <source>无法打开</source>
        <translation>Kan inte öppnas</translation>
    </message>
    <message>
        <source>无法打开键盘，可能正被其他程序占用。请关闭该程序后重新插拔键盘。</source>
        <translation>Tangentbordet kan inte öppnas. Ett annat program kanske använder det: stäng programmet och anslut tangentbordet igen.</translation>
    </message>
    <message>
        <source>键盘</source>
        <translation>Tangentbord</translation>
    </message>
</context>
<context>
    <name>DialogColorPicker</name>
    <message>
        <source>取色器</source>
        <translation>Färgväljare</translation>
    </message>
    <message>
        <source>按住并拖到屏幕上的任意位置取色</source>
        <translation>Håll ned och dra till valfri plats på skärmen för att välja en färg</translation>
    </message>
    <message>
        <source>完成</source>
        <translation>Klar</translation>
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
    <name>DialogFNPicker</name>
    <message>
        <source>组合键</source>
        <translation>Tangentkombination</translation>
    </message>
    <message>
        <source>基本字符</source>
        <translation>Grundtangenter</translation>
    </message>
    <message>
        <source>拓展字符(按键)</source>
        <translation>Extratangenter</translation>
    </message>
    <message>
        <source>宏设置</source>
        <translation>Makron</translation>
    </message>
    <message>
        <source>播放方式:</source>
        <translation>Uppspelningsläge:</translation>
    </message>
    <message>
        <source>循环次数</source>
        <translation>Antal upprepningar</translation>
    </message>
    <message>
        <source>自动</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>按下</source>
        <translation>Tryck</translation>
    </message>
    <message>
        <source>系统功能</source>
        <translation>Systemfunktioner</translation>
    </message>
    <message>
        <source>鼠标功能</source>
        <translation>Musfunktioner</translation>
    </message>
    <message>
        <source>设置功能为:</source>
        <translation>Ange funktion:</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>左键</source>
        <translation>Vänster</translation>
    </message>
    <message>
        <source>右键</source>
        <translation>Höger</translation>
    </message>
    <message>
        <source>中键</source>
        <translation>Mitten</translation>
    </message>
    <message>
        <source>前移</source>
        <translation>Framåt</translation>
    </message>
    <message>
        <source>后移</source>
        <translation>Bakåt</translation>
    </message>
    <message>
        <source>左滚</source>
        <translation>Hjul vänster</translation>
    </message>
    <message>
        <source>右滚</source>
        <translation>Hjul höger</translation>
    </message>
    <message>
        <source>上滚</source>
        <translation>Hjul upp</translation>
    </message>
    <message>
        <source>下滚</source>
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
        <source>自定义按键</source>
        <translation>Anpassade tangenter</translation>
    </message>
    <message>
        <source>宏</source>
        <translation>Makro </translation>
    </message>
    <message>
        <source>未录制的宏</source>
        <translation>Makrot är inte inspelat</translation>
    </message>
</context>
<context>
    <name>DialogVKPicker</name>
    <message>
        <source>基本字符</source>
        <translation>Grundtangenter</translation>
    </message>
    <message>
        <source>拓展字符</source>
        <translation>Extratangenter</translation>
    </message>
    <message>
        <source>组合键：</source>
        <translation>Tangentkombination:</translation>
    </message>
    <message>
        <source>确认</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>组合键</source>
        <translation>Tangentkombination</translation>
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
        <translation>Magnetswitchar</translation>
    </message>
    <message>
        <source>宏设置</source>
        <translation>Makron</translation>
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
    <name>FrameKeySetting</name>
    <message>
        <source>自定义</source>
        <translation>Anpassad</translation>
    </message>
    <message>
        <source>高级键</source>
        <translation>Avancerat</translation>
    </message>
    <message>
        <source>其他设置</source>
        <translation>Övrigt</translation>
    </message>
    <message>
        <source>Fn层设置</source>
        <translation>Fn-lager</translation>
    </message>
    <message>
        <source>自定义/Fn层设置</source>
        <translation>Anpassat / Fn-lager</translation>
    </message>
    <message>
        <source>*首先点击选择上方按键，在弹出的对话框中可选择组合键、宏设置、系统功能、鼠标功能进行改建设置</source>
        <translation>*Klicka först på en tangent ovan och välj sedan en kombination, ett makro, en system- eller musfunktion i dialogrutan</translation>
    </message>
    <message>
        <source>*右键点击按键可清除设置、禁用按键或取消禁用</source>
        <translation>*Högerklicka på en tangent för att rensa inställningen, inaktivera den eller aktivera den igen</translation>
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
        <translation>Växla (TGL)</translation>
    </message>
    <message>
        <source>Fn层按键设置</source>
        <translation>Tangenter i Fn-lagret</translation>
    </message>
    <message>
        <source>自定义按键</source>
        <translation>Anpassade tangenter</translation>
    </message>
</context>
<context>
    <name>FrameLight</name>
    <message>
        <source>点击按键上色，拖动可给多个按键上色</source>
        <translation>Klicka på en tangent för att färga den, eller dra över flera</translation>
    </message>
    <message>
        <source>我的作品</source>
        <translation>Mina verk</translation>
    </message>
    <message>
        <source>颜色:</source>
        <translation>Färg:</translation>
    </message>
    <message>
        <source>取色器：</source>
        <translation>Färgväljare:</translation>
    </message>
    <message>
        <source>随机颜色：</source>
        <translation>Slumpfärg:</translation>
    </message>
    <message>
        <source>清除设置</source>
        <translation>Rensa</translation>
    </message>
    <message>
        <source>写入层(图):</source>
        <translation>Skriv till lager:</translation>
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
        <translation>Läs från lager:</translation>
    </message>
    <message>
        <source>作品名称:</source>
        <translation>Namn:</translation>
    </message>
    <message>
        <source>更新</source>
        <translation>Uppdatera</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Spara</translation>
    </message>
    <message>
        <source>还没有作品，给按键上色后点击“保存”</source>
        <translation>Inga verk än. Färga några tangenter och tryck på Spara</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Meddelande</translation>
    </message>
    <message>
        <source>确认要删除此作品吗？</source>
        <translation>Vill du ta bort det här verket?</translation>
    </message>
    <message>
        <source>我的作品%1</source>
        <translation>Mitt verk %1</translation>
    </message>
    <message>
        <source>作品已保存</source>
        <translation>Verket har sparats</translation>
    </message>
    <message>
        <source>把现在的颜色写入键盘的这一层</source>
        <translation>Sparar färgerna som visas i detta lager på tangentbordet</translation>
    </message>
    <message>
        <source>显示键盘这一层里的颜色</source>
        <translation>Visar färgerna som tangentbordet har i detta lager</translation>
    </message>
</context>
<context>
    <name>FrameMacro</name>
    <message>
        <source>宏设置</source>
        <translation>Makron</translation>
    </message>
    <message>
        <source>抬起</source>
        <translation>Släpp</translation>
    </message>
    <message>
        <source>按下</source>
        <translation>Tryck</translation>
    </message>
    <message>
        <source>延迟</source>
        <translation>Fördröjning</translation>
    </message>
    <message>
        <source>开始录制</source>
        <translation>Spela in</translation>
    </message>
    <message>
        <source>插入</source>
        <translation>Infoga</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Ta bort</translation>
    </message>
    <message>
        <source>清空</source>
        <translation>Rensa</translation>
    </message>
    <message>
        <source>设置固定延迟(ms):</source>
        <translation>Fast fördröjning (ms):</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Spara</translation>
    </message>
    <message>
        <source>新建宏</source>
        <translation>Nytt makro</translation>
    </message>
    <message>
        <source>停止录制</source>
        <translation>Stoppa</translation>
    </message>
    <message>
        <source>点击“开始录制”后按下按键，或点击“插入”添加事件</source>
        <translation>Klicka på ”Spela in” och tryck på tangenter, eller på ”Infoga” för att lägga till en händelse</translation>
    </message>
    <message>
        <source>请在左侧选择一个宏</source>
        <translation>Välj ett makro till vänster</translation>
    </message>
    <message>
        <source>占用</source>
        <translation>Använt</translation>
    </message>
    <message>
        <source>字节</source>
        <translation>byte</translation>
    </message>
    <message>
        <source>录制键盘和鼠标按键，再次点击结束</source>
        <translation>Spelar in tangenter och musknappar tills den trycks igen</translation>
    </message>
    <message>
        <source>把所有延迟都设为右侧的值</source>
        <translation>Sätter varje fördröjning till talet till höger</translation>
    </message>
</context>
<context>
    <name>FrameMagic</name>
    <message>
        <source>行程设置</source>
        <translation>Aktiveringspunkt</translation>
    </message>
    <message>
        <source>死区设置</source>
        <translation>Dödzoner</translation>
    </message>
    <message>
        <source>轴体设置</source>
        <translation>Switchtyp</translation>
    </message>
    <message>
        <source>增稳算法</source>
        <translation>Stabilisering</translation>
    </message>
    <message>
        <source>模拟测试</source>
        <translation>Test</translation>
    </message>
    <message>
        <source>已选中按键的数量</source>
        <translation>Valda tangenter</translation>
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
        <translation>Mekanisk switch</translation>
    </message>
    <message>
        <source>凯华轴</source>
        <translation>Kailh-switch</translation>
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
        <translation>Magnetisk lågprofil</translation>
    </message>
    <message>
        <source>星芒磁轴</source>
        <translation>Starburst</translation>
    </message>
    <message>
        <source>白泽轴</source>
        <translation>Baize-switch</translation>
    </message>
    <message>
        <source>自定义</source>
        <translation>Anpassad</translation>
    </message>
</context>
<context>
    <name>FrameMain</name>
    <message>
        <source>键程设置(全局)</source>
        <translation>Aktiveringspunkt (global)</translation>
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
    <name>KeyBubble</name>
    <message>
        <source>系统按键</source>
        <translation>Systemtangent</translation>
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
        <translation>Växla</translation>
    </message>
    <message>
        <source>宏设置</source>
        <translation>Makron</translation>
    </message>
</context>
<context>
    <name>KeyTestPage</name>
    <message>
        <source>行程测试</source>
        <translation>Slaglängdstest</translation>
    </message>
    <message>
        <source>按键测试</source>
        <translation>Tangenttest</translation>
    </message>
    <message>
        <source>输入值</source>
        <translation>Inmatning</translation>
    </message>
    <message>
        <source>按下任意按键。无线连接下没有实时行程数据。</source>
        <translation>Tryck på en tangent. Trådlöst finns inga realtidsdata om slaglängden.</translation>
    </message>
</context>
<context>
    <name>LightWorksModel</name>
    <message>
        <source>删除</source>
        <translation>Ta bort</translation>
    </message>
    <message>
        <source>预览图,作品名称,管理</source>
        <translation>Förhandsvisning,Namn,Hantera</translation>
    </message>
</context>
<context>
    <name>LinearFixing1</name>
    <message>
        <source>行程校准操作指南</source>
        <translation>Guide för kalibrering</translation>
    </message>
    <message>
        <source>请依次将每个按键轻按到底并停留至少1秒钟，直到按键变为橙色（表示该按键校准成功），请勿遗漏，可重复按按键。无线下不支持按键校准个数提示。校准过程中请勿拔出数据线。</source>
        <translation>Tryck ned varje tangent försiktigt i botten, en i taget, och håll den i minst 1 sekund tills den blir orange (tangenten är kalibrerad). Missa ingen; tangenter kan tryckas igen. Trådlöst visas inte antalet kalibrerade tangenter. Dra inte ur kabeln under kalibreringen.</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>开始校准</source>
        <translation>Starta kalibrering</translation>
    </message>
</context>
<context>
    <name>LinearFixing2</name>
    <message>
        <source>行程校准</source>
        <translation>Kalibrera</translation>
    </message>
    <message>
        <source>请依次将每个按键轻按到底并停留至少1秒钟，直到按键变为橙色（表示该按键校准成功），请勿遗漏，可重复按按键。无线下不支持按键校准个数提示。校准过程中请勿拔出数据线。</source>
        <translation>Tryck ned varje tangent försiktigt i botten, en i taget, och håll den i minst 1 sekund tills den blir orange (tangenten är kalibrerad). Missa ingen; tangenter kan tryckas igen. Trådlöst visas inte antalet kalibrerade tangenter. Dra inte ur kabeln under kalibreringen.</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>完成校准</source>
        <translation>Slutför kalibrering</translation>
    </message>
</context>
<context>
    <name>MacroItem</name>
    <message>
        <source>重命名</source>
        <translation>Byt namn</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Ta bort</translation>
    </message>
</context>
<context>
    <name>MacroSquare</name>
    <message>
        <source>插入</source>
        <translation>Infoga</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Ta bort</translation>
    </message>
    <message>
        <source>延迟</source>
        <translation>Fördröjning</translation>
    </message>
    <message>
        <source>左键</source>
        <translation>Vänster</translation>
    </message>
    <message>
        <source>右键</source>
        <translation>Höger</translation>
    </message>
    <message>
        <source>中键</source>
        <translation>Mitten</translation>
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
        <translation>Mina enheter </translation>
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
    <name>MessageBox</name>
    <message>
        <source>是</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>否</source>
        <translation>Nej</translation>
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
    <name>ModuleAddMacroSquare</name>
    <message>
        <source>请选择添加宏事件类型</source>
        <translation>Välj typ av makrohändelse</translation>
    </message>
    <message>
        <source>键盘按键</source>
        <translation>Tangent</translation>
    </message>
    <message>
        <source>请按下按键......</source>
        <translation>Tryck på en tangent …</translation>
    </message>
    <message>
        <source>鼠标按键</source>
        <translation>Musknapp</translation>
    </message>
    <message>
        <source>左键</source>
        <translation>Vänster</translation>
    </message>
    <message>
        <source>中键</source>
        <translation>Mitten</translation>
    </message>
    <message>
        <source>右键</source>
        <translation>Höger</translation>
    </message>
    <message>
        <source>鼠标位置</source>
        <translation>Musposition</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Avbryt</translation>
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
        <translation>Tryck (mm)</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Spara</translation>
    </message>
</context>
<context>
    <name>ModuleDKSItem</name>
    <message>
        <source>按下触发</source>
        <translation>Förbi aktiveringspunkten</translation>
    </message>
    <message>
        <source>按到底部</source>
        <translation>I botten</translation>
    </message>
    <message>
        <source>离开底部</source>
        <translation>Lyft från botten</translation>
    </message>
    <message>
        <source>回到顶部</source>
        <translation>Tillbaka i toppen</translation>
    </message>
    <message>
        <source>未设置功能</source>
        <translation>Ingen funktion</translation>
    </message>
    <message>
        <source>已开启</source>
        <translation>På</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Av</translation>
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
        <translation>Förbi aktiveringspunkten</translation>
    </message>
    <message>
        <source>按到底部</source>
        <translation>I botten</translation>
    </message>
    <message>
        <source>离开底部</source>
        <translation>Lyft från botten</translation>
    </message>
    <message>
        <source>回到顶部</source>
        <translation>Tillbaka i toppen</translation>
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
        <translation>Anpassad</translation>
    </message>
    <message>
        <source>单键</source>
        <translation>Enstaka tangent</translation>
    </message>
    <message>
        <source>灯带灯效设置</source>
        <translation>Ljusslinga</translation>
    </message>
    <message>
        <source>灯效：</source>
        <translation>Effekt:</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Av</translation>
    </message>
    <message>
        <source>常亮</source>
        <translation>Fast sken</translation>
    </message>
    <message>
        <source>呼吸</source>
        <translation>Andning</translation>
    </message>
    <message>
        <source>川流不息</source>
        <translation>Ström</translation>
    </message>
    <message>
        <source>霓虹</source>
        <translation>Neon</translation>
    </message>
    <message>
        <source>光波</source>
        <translation>Ljusvåg</translation>
    </message>
    <message>
        <source>色彩：</source>
        <translation>Färg:</translation>
    </message>
    <message>
        <source>炫彩</source>
        <translation>RGB</translation>
    </message>
    <message>
        <source>亮度：</source>
        <translation>Ljusstyrka:</translation>
    </message>
    <message>
        <source>速度：</source>
        <translation>Hastighet:</translation>
    </message>
    <message>
        <source>颜色%1</source>
        <translation>Färg %1</translation>
    </message>
    <message>
        <source>取色器</source>
        <translation>Färgväljare</translation>
    </message>
</context>
<context>
    <name>ModuleEfLumi</name>
    <message>
        <source>灯光亮度</source>
        <translation>Ljusstyrka</translation>
    </message>
</context>
<context>
    <name>ModuleEfMode</name>
    <message>
        <source>灯效模式</source>
        <translation>Ljusläge</translation>
    </message>
    <message>
        <source>关灯</source>
        <translation>Släck</translation>
    </message>
    <message>
        <source>灯光播放模式:</source>
        <translation>Uppspelningsläge:</translation>
    </message>
    <message>
        <source>常亮</source>
        <translation>Fast sken</translation>
    </message>
    <message>
        <source>呼吸</source>
        <translation>Andning</translation>
    </message>
    <message>
        <source>流星</source>
        <translation>Meteor</translation>
    </message>
    <message>
        <source>涟漪</source>
        <translation>Krusning</translation>
    </message>
    <message>
        <source>极光</source>
        <translation>Norrsken</translation>
    </message>
    <message>
        <source>雨滴</source>
        <translation>Regndroppar</translation>
    </message>
    <message>
        <source>聚合</source>
        <translation>Samling</translation>
    </message>
    <message>
        <source>川流不息</source>
        <translation>Ström</translation>
    </message>
    <message>
        <source>霓虹</source>
        <translation>Neon</translation>
    </message>
    <message>
        <source>光波</source>
        <translation>Ljusvåg</translation>
    </message>
    <message>
        <source>繁星点点</source>
        <translation>Stjärnhimmel</translation>
    </message>
    <message>
        <source>如影随形</source>
        <translation>Skugga</translation>
    </message>
    <message>
        <source>正弦波</source>
        <translation>Sinusvåg</translation>
    </message>
    <message>
        <source>彩泉涌动</source>
        <translation>Färgfontän</translation>
    </message>
    <message>
        <source>百花争艳</source>
        <translation>Blomsterprakt</translation>
    </message>
    <message>
        <source>一石二鸟</source>
        <translation>Två flugor</translation>
    </message>
    <message>
        <source>峰回路转</source>
        <translation>Slingrande väg</translation>
    </message>
    <message>
        <source>斜风细雨</source>
        <translation>Duggregn</translation>
    </message>
    <message>
        <source>踏雪无痕</source>
        <translation>Spårlös snö</translation>
    </message>
    <message>
        <source>层出不穷</source>
        <translation>Lager</translation>
    </message>
    <message>
        <source>光影</source>
        <translation>Ljus och skugga</translation>
    </message>
    <message>
        <source>音乐律动</source>
        <translation>Musikrytm</translation>
    </message>
    <message>
        <source>自定义</source>
        <translation>Anpassad</translation>
    </message>
    <message>
        <source>左</source>
        <translation>Vänster</translation>
    </message>
    <message>
        <source>右</source>
        <translation>Höger</translation>
    </message>
    <message>
        <source>上</source>
        <translation>Upp</translation>
    </message>
    <message>
        <source>下</source>
        <translation>Ned</translation>
    </message>
    <message>
        <source>Z形</source>
        <translation>Z-form</translation>
    </message>
    <message>
        <source>回形</source>
        <translation>Spiral</translation>
    </message>
    <message>
        <source>向内</source>
        <translation>Inåt</translation>
    </message>
    <message>
        <source>向外</source>
        <translation>Utåt</translation>
    </message>
    <message>
        <source>向右</source>
        <translation>Åt höger</translation>
    </message>
    <message>
        <source>向左</source>
        <translation>Åt vänster</translation>
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
        <translation>Medurs</translation>
    </message>
    <message>
        <source>逆时针</source>
        <translation>Moturs</translation>
    </message>
    <message>
        <source>无</source>
        <translation>Ingen</translation>
    </message>
</context>
<context>
    <name>ModuleEfSpeed</name>
    <message>
        <source>灯光速度</source>
        <translation>Hastighet</translation>
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
        <translation>Volym&#xa0;+</translation>
    </message>
    <message>
        <source>音量-</source>
        <translation>Volym&#xa0;−</translation>
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
        <translation>Skärm ljusare</translation>
    </message>
    <message>
        <source>亮度-</source>
        <translation>Skärm mörkare</translation>
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
        <translation>Bläddra DPI</translation>
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
        <translation>Profilvärde</translation>
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
        <translation>Bläddra profiler</translation>
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
        <translation>Ljuseffekt&#xa0;+</translation>
    </message>
    <message>
        <source>背光灯效-</source>
        <translation>Ljuseffekt&#xa0;−</translation>
    </message>
    <message>
        <source>背光亮度循环</source>
        <translation>Bläddra ljusstyrka</translation>
    </message>
    <message>
        <source>背光亮度+</source>
        <translation>Bakgrundsljus&#xa0;+</translation>
    </message>
    <message>
        <source>背光亮度-</source>
        <translation>Bakgrundsljus&#xa0;−</translation>
    </message>
    <message>
        <source>背光速度循环</source>
        <translation>Bläddra hastighet</translation>
    </message>
    <message>
        <source>背光速度-</source>
        <translation>Ljushastighet&#xa0;−</translation>
    </message>
    <message>
        <source>背光速度+</source>
        <translation>Ljushastighet&#xa0;+</translation>
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
        <translation>Ljusfärg&#xa0;+</translation>
    </message>
    <message>
        <source>背光颜色-</source>
        <translation>Ljusfärg&#xa0;−</translation>
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
        <translation>Sidoljushastighet&#xa0;+</translation>
    </message>
    <message>
        <source>侧光速度-</source>
        <translation>Sidoljushastighet&#xa0;−</translation>
    </message>
    <message>
        <source>侧光颜色循环</source>
        <translation>Bläddra sidoljusfärg</translation>
    </message>
    <message>
        <source>侧光颜色+</source>
        <translation>Sidoljusfärg&#xa0;+</translation>
    </message>
    <message>
        <source>侧光颜色-</source>
        <translation>Sidoljusfärg&#xa0;−</translation>
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
        <translation>Makron</translation>
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
    <name>ModuleLinear</name>
    <message>
        <source>按下(mm)</source>
        <translation>Aktivering (mm)</translation>
    </message>
    <message>
        <source>抬起(mm)</source>
        <translation>Släpp (mm)</translation>
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
        <translation>Välj en tangent ovan och ge den två funktioner: en för tryck och en för håll (kombinationer stöds)</translation>
    </message>
    <message>
        <source>单击</source>
        <translation>Tryck</translation>
    </message>
    <message>
        <source>按住</source>
        <translation>Håll</translation>
    </message>
    <message>
        <source>调整触发“按住&quot;键所需的时间</source>
        <translation>Justera tiden innan ”Håll” utlöses</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>按住超过这段时间才执行“按住”的功能</source>
        <translation>Hålls tangenten längre än så här utförs dess funktion för ”Håll”</translation>
    </message>
</context>
<context>
    <name>ModuleMacroManager</name>
    <message>
        <source>新建宏</source>
        <translation>Nytt makro </translation>
    </message>
</context>
<context>
    <name>ModuleRtSet</name>
    <message>
        <source>RT行程设置(全局)</source>
        <translation>RT-känslighet (global)</translation>
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
    <name>ModuleSnapTab</name>
    <message>
        <source>绑定2个选定按键(分别从上面选择)，当两个按键被同时按下时，以最后按下的按键为准</source>
        <translation>Kopplar 2 valda tangenter (välj var och en ovan): hålls båda gäller den som trycktes sist (SOCD)</translation>
    </message>
    <message>
        <source>选择A键</source>
        <translation>Välj tangent A</translation>
    </message>
    <message>
        <source>选择B键</source>
        <translation>Välj tangent B</translation>
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
        <translation>Välj en tangent ovan och ställ in funktionen i ett av två lägen: upprepa eller håll</translation>
    </message>
    <message>
        <source>连点</source>
        <translation>Upprepa</translation>
    </message>
    <message>
        <source>长按</source>
        <translation>Håll</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>未设置功能</source>
        <translation>Ingen funktion</translation>
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
        <translation>Guide Orbe 7090: makron</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Select All</source>
        <translation>Markera &amp;allt</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>Ö&amp;ka</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>&amp;Minska</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Ångra</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Gör om</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Klipp &amp;ut</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopiera</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>K&amp;listra in</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Ta bort</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Markera allt</translation>
    </message>
</context>
<context>
    <name>ShellNotices</name>
    <message>
        <source>重试</source>
        <translation>Försök igen</translation>
    </message>
</context>
<context>
    <name>StabilityPage</name>
    <message>
        <source>RT Stab(RT 增稳算法)</source>
        <translation>RT Stab (RT-stabilisering)</translation>
    </message>
    <message>
        <source>RT Stab打开后，算法会介入增强轴体底部的稳定性。介入百分比越大，稳定性越强，延迟也会有所增加。</source>
        <translation>RT Stab gör botten av slaglängden stabilare. En högre procent är stabilare men ger lite mer fördröjning.</translation>
    </message>
    <message>
        <source>0%(关闭)</source>
        <translation>0% (av)</translation>
    </message>
    <message>
        <source>防误触模式</source>
        <translation>Skydd mot feltryck</translation>
    </message>
    <message>
        <source>(已关闭)</source>
        <translation>(Av)</translation>
    </message>
    <message>
        <source>防止极限性能下桌面抖动误触发或轴体公差可能造成还有0.1mm的行程公差。开启后优化底部按键算法补足行程差值提高键盘稳定性。</source>
        <translation>Förhindrar feltryck när bordet skakar vid extrema inställningar och jämnar ut switchtoleranser på upp till 0,1 mm. Påslaget kompenserar algoritmen i botten och gör tangentbordet stabilare.</translation>
    </message>
    <message>
        <source>已开启</source>
        <translation>På</translation>
    </message>
    <message>
        <source>已关闭</source>
        <translation>Av</translation>
    </message>
</context>
<context>
    <name>SwitchTypePage</name>
    <message>
        <source>轴体设置</source>
        <translation>Switchtyp</translation>
    </message>
    <message>
        <source>更换键盘轴体后，选择对应轴体的按键，点击下方对应的轴体选项进行设置来区分不同轴体</source>
        <translation>Efter byte av switchar: välj rätt switch nedan och klicka på tangenterna som har den</translation>
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
        <translation>Omkopplare</translation>
    </message>
</context>
<context>
    <name>TravelPage</name>
    <message>
        <source>单独设置按下抬起触发行程：</source>
        <translation>Ställ in aktivering och släpp separat:</translation>
    </message>
    <message>
        <source>全程连续快速触发（RT）</source>
        <translation>Kontinuerlig Rapid Trigger (RT)</translation>
    </message>
    <message>
        <source>启用时，快速触发在您完全松开按键时才会终止。
禁用时，松开按键到轴体触发行程后终止快速触发</source>
        <translation>På: Rapid Trigger slutar först när tangenten släpps helt.
Av: Rapid Trigger slutar när tangenten stiger över aktiveringspunkten</translation>
    </message>
    <message>
        <source>单独设置按键再次按下触发和松开重置行程</source>
        <translation>Ställ in RT-väg för tryck och släpp separat</translation>
    </message>
    <message>
        <source>再次按下按键触发所需的行程(mm)</source>
        <translation>Väg till ny aktivering (mm)</translation>
    </message>
    <message>
        <source>松开按键重置所需的行程(mm)</source>
        <translation>Väg till återställning (mm)</translation>
    </message>
    <message>
        <source>设置</source>
        <translation>Använd</translation>
    </message>
    <message>
        <source>抬起后再按下这段距离即再次触发，越小越灵敏</source>
        <translation>Ett tryck så här långt utlöser igen var tangenten än är; mindre är känsligare</translation>
    </message>
    <message>
        <source>按下后抬起这段距离即释放，越小越灵敏</source>
        <translation>Ett lyft så här långt återställer tangenten var den än är; mindre är känsligare</translation>
    </message>
    <message>
        <source>按键按到多深时触发</source>
        <translation>Hur långt ned en tangent trycks innan den utlöses</translation>
    </message>
    <message>
        <source>按键抬到多高时释放</source>
        <translation>Hur långt upp en tangent kommer innan den återställs</translation>
    </message>
</context>
<context>
    <name>TravelRuler</name>
    <message>
        <source>行程测试</source>
        <translation>Slaglängdstest</translation>
    </message>
</context>
<context>
    <name>WorkMeter</name>
    <message>
        <source>正在读取键盘</source>
        <translation>Läser tangentbordet</translation>
    </message>
    <message>
        <source>正在写入键盘</source>
        <translation>Skriver till tangentbordet</translation>
    </message>
</context>
</TS>
