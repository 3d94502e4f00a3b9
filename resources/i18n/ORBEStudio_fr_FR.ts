<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="zh_CN">
<context>
    <name>ColorSlider</name>
    <message>
        <source>色相</source>
        <translation>Teinte</translation>
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
        <translation>Commande,Longueur,Byte0
N° de commande (Hex),Byte1
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
        <translation>Onglets</translation>
    </message>
</context>
<context>
    <name>CustumSlider</name>
    <message>
        <source>滑块</source>
        <translation>Curseur</translation>
    </message>
</context>
<context>
    <name>DeadZonePage</name>
    <message>
        <source>死区设置</source>
        <translation>Zones mortes</translation>
    </message>
    <message>
        <source>按键死区设定</source>
        <translation>Zones mortes des touches</translation>
    </message>
    <message>
        <source>触底到抬起前的距离俗称“死区”。死区可减少磁轴因环境干扰带来的断触问题，磁轴的底部可自定义，您可根据个人需求自定义死区，设定之后，此段行程不会触发。</source>
        <translation>La distance entre la butée et le début de la remontée s’appelle «&#xa0;zone morte&#xa0;». Elle évite les coupures du switch magnétique dues aux perturbations. Réglez-la à votre goût&#xa0;; rien ne se déclenche dans cette zone.</translation>
    </message>
    <message>
        <source>设置</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>顶部死区</source>
        <translation>Zone morte haute</translation>
    </message>
    <message>
        <source>底部死区</source>
        <translation>Zone morte basse</translation>
    </message>
    <message>
        <source>按键顶部不触发的距离，可防误触</source>
        <translation>Course sans effet en haut, contre les appuis involontaires</translation>
    </message>
    <message>
        <source>按键底部不响应的距离，可防抖动</source>
        <translation>Course sans effet en bas, contre les vibrations d’une touche enfoncée</translation>
    </message>
</context>
<context>
    <name>DemoBoard</name>
    <message>
        <source>没有插入键盘</source>
        <translation>Aucun clavier branché</translation>
    </message>
    <message>
        <source>虚拟键盘的灯光</source>
        <translation>Éclairage du clavier virtuel</translation>
    </message>
    <message>
        <source>虚拟键盘</source>
        <translation>Clavier virtuel</translation>
    </message>
    <message>
        <source>单击按键即可按下它，部分灯效会作出反应。</source>
        <translation>Cliquez sur une touche pour l’enfoncer&#xa0;; certains effets réagissent.</translation>
    </message>
    <message>
        <source>灯光已关闭</source>
        <translation>Éclairage éteint</translation>
    </message>
    <message>
        <source>%1 · 亮度 %2% · 速度 %3%</source>
        <translation>%1 · luminosité %2% · vitesse %3%</translation>
    </message>
</context>
<context>
    <name>DemoDesk</name>
    <message>
        <source>虚拟设备</source>
        <translation>Appareils virtuels</translation>
    </message>
    <message>
        <source>插入或拔出虚拟设备：</source>
        <translation>Brancher ou débrancher des appareils virtuels&#xa0;:</translation>
    </message>
    <message>
        <source>依次按下所有按键</source>
        <translation>Appuyer sur toutes les touches l’une après l’autre</translation>
    </message>
    <message>
        <source>显示键盘的灯光</source>
        <translation>Afficher l’éclairage du clavier</translation>
    </message>
</context>
<context>
    <name>DeviceOptionsPanel</name>
    <message>
        <source>键盘回报率</source>
        <translation>Polling rate</translation>
    </message>
    <message>
        <source>2.4G关闭背光</source>
        <translation>2.4G&#xa0;: extinction</translation>
    </message>
    <message>
        <source>蓝牙关闭背光</source>
        <translation>Bluetooth&#xa0;: extinction</translation>
    </message>
    <message>
        <source>2.4G深度睡眠时间</source>
        <translation>Veille profonde 2.4G</translation>
    </message>
    <message>
        <source>分钟</source>
        <translation>min</translation>
    </message>
    <message>
        <source>蓝牙深度睡眠时间</source>
        <translation>Veille profonde Bluetooth</translation>
    </message>
    <message>
        <source>按键防抖等级设置</source>
        <translation>Niveau d’anti-rebond</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>键盘每秒向电脑报告的次数，越高延迟越低</source>
        <translation>Nombre de rapports par seconde envoyés à l’ordinateur&#xa0;; plus il est élevé, plus la latence est faible</translation>
    </message>
    <message>
        <source>不按键多久后关闭背光</source>
        <translation>Durée sans appui avant l’extinction du rétroéclairage</translation>
    </message>
    <message>
        <source>不按键多久后进入深度睡眠，可省电</source>
        <translation>Durée sans appui avant la veille profonde, qui économise la batterie</translation>
    </message>
    <message>
        <source>级别越高越能避免连击，但会增加延迟</source>
        <translation>Un niveau plus élevé évite mieux les doubles frappes, mais ajoute de la latence</translation>
    </message>
</context>
<context>
    <name>DeviceTrouble</name>
    <message>
        <source>系统不允许访问此键盘。请将 70-orbehub.rules 复制到 /etc/udev/rules.d，然后重新插拔键盘。</source>
        <translation>Le système refuse l’accès à ce clavier. Copiez 70-orbehub.rules dans /etc/udev/rules.d, puis rebranchez le clavier.</translation>
    </message>
    <message>
        <source>系统不允许访问此键盘。请检查您的用户权限，然后重新插拔键盘。</source>
        <translation>Le système refuse l’accès à ce clavier. Vérifiez vos droits d’utilisateur, puis rebranchez le clavier.</translation>
    </message>
    <message>
        <source>已断开</source>
        <translation>Déconnecté</translation>
    </message>
    <message>
        <source>键盘已断开，重新连接后即可使用。</source>
        <translation>Le clavier est déconnecté. Rebranchez-le pour l’utiliser.</translation>
    </message>
    <message>
        <source>没有响应</source>
        <translation>Ne répond pas</translation>
    </message>
    <message>
        <source>键盘没有响应，可能处于休眠状态，请按任意键唤醒。</source>
        <translation>Le clavier ne répond pas. Il est peut-être en veille&#xa0;: appuyez sur une touche pour le réveiller.</translation>
    </message>
    <message>
        <source>没有访问权限</source>
        <translation>Accès refusé</translation>
    </message>
    <message>
        <source>无法打开</source>
        <translation>Impossible à ouvrir</translation>
    </message>
    <message>
        <source>无法打开键盘，可能正被其他程序占用。请关闭该程序后重新插拔键盘。</source>
        <translation>Impossible d’ouvrir le clavier. Un autre programme l’utilise peut-être&#xa0;: fermez-le, puis rebranchez le clavier.</translation>
    </message>
    <message>
        <source>键盘</source>
        <translation>Clavier</translation>
    </message>
</context>
<context>
    <name>DialogColorPicker</name>
    <message>
        <source>取色器</source>
        <translation>Sélecteur de couleur</translation>
    </message>
    <message>
        <source>按住并拖到屏幕上的任意位置取色</source>
        <translation>Maintenez et faites glisser n’importe où sur l’écran pour prélever une couleur</translation>
    </message>
    <message>
        <source>完成</source>
        <translation>Terminé</translation>
    </message>
</context>
<context>
    <name>DialogDeviceConnect</name>
    <message>
        <source>Orbe Studio 设备调试</source>
        <translation>Débogage du périphérique Orbe Studio</translation>
    </message>
    <message>
        <source>命令目录</source>
        <translation>Catalogue des commandes</translation>
    </message>
</context>
<context>
    <name>DialogFNPicker</name>
    <message>
        <source>组合键</source>
        <translation>Combinaison de touches</translation>
    </message>
    <message>
        <source>基本字符</source>
        <translation>Touches de base</translation>
    </message>
    <message>
        <source>拓展字符(按键)</source>
        <translation>Touches étendues</translation>
    </message>
    <message>
        <source>宏设置</source>
        <translation>Macros</translation>
    </message>
    <message>
        <source>播放方式:</source>
        <translation>Mode de lecture&#xa0;:</translation>
    </message>
    <message>
        <source>循环次数</source>
        <translation>Répétitions</translation>
    </message>
    <message>
        <source>自动</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>按下</source>
        <translation>Appui</translation>
    </message>
    <message>
        <source>系统功能</source>
        <translation>Fonctions système</translation>
    </message>
    <message>
        <source>鼠标功能</source>
        <translation>Fonctions souris</translation>
    </message>
    <message>
        <source>设置功能为:</source>
        <translation>Affecter la fonction&#xa0;:</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>左键</source>
        <translation>Gauche</translation>
    </message>
    <message>
        <source>右键</source>
        <translation>Droit</translation>
    </message>
    <message>
        <source>中键</source>
        <translation>Milieu</translation>
    </message>
    <message>
        <source>前移</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>后移</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>左滚</source>
        <translation>Molette gauche</translation>
    </message>
    <message>
        <source>右滚</source>
        <translation>Molette droite</translation>
    </message>
    <message>
        <source>上滚</source>
        <translation>Molette haut</translation>
    </message>
    <message>
        <source>下滚</source>
        <translation>Molette bas</translation>
    </message>
    <message>
        <source>向上滚屏</source>
        <translation>Défiler vers le haut</translation>
    </message>
    <message>
        <source>向下滚屏</source>
        <translation>Défiler vers le bas</translation>
    </message>
    <message>
        <source>自定义按键</source>
        <translation>Touches personnalisées</translation>
    </message>
    <message>
        <source>宏</source>
        <translation>Macro </translation>
    </message>
    <message>
        <source>未录制的宏</source>
        <translation>Macro non enregistrée</translation>
    </message>
</context>
<context>
    <name>DialogVKPicker</name>
    <message>
        <source>基本字符</source>
        <translation>Touches de base</translation>
    </message>
    <message>
        <source>拓展字符</source>
        <translation>Touches étendues</translation>
    </message>
    <message>
        <source>组合键：</source>
        <translation>Combinaison de touches&#xa0;:</translation>
    </message>
    <message>
        <source>确认</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>组合键</source>
        <translation>Combinaison de touches</translation>
    </message>
</context>
<context>
    <name>FrameAbout</name>
    <message>
        <source>关于</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>设备名称：Orbe 7090</source>
        <translation>Nom de l’appareil&#xa0;: Orbe 7090</translation>
    </message>
    <message>
        <source>键盘固件版本：V1.0</source>
        <translation>Version du micrologiciel du clavier&#xa0;: V1.0</translation>
    </message>
    <message>
        <source>无线连接器固件版本：V1.0</source>
        <translation>Version du micrologiciel du récepteur&#xa0;: V1.0</translation>
    </message>
    <message>
        <source>当前版本：V1.0</source>
        <translation>Version actuelle&#xa0;: V1.0</translation>
    </message>
    <message>
        <source>检查键盘固件更新</source>
        <translation>Vérifier le micrologiciel du clavier</translation>
    </message>
    <message>
        <source>检查无线连接器固件更新</source>
        <translation>Vérifier le micrologiciel du récepteur</translation>
    </message>
    <message>
        <source>操作教学</source>
        <translation>Tutoriels</translation>
    </message>
    <message>
        <source>关于Orbe</source>
        <translation>À propos d’Orbe</translation>
    </message>
</context>
<context>
    <name>FrameDeviceHolder</name>
    <message>
        <source>首页</source>
        <translation>Accueil</translation>
    </message>
    <message>
        <source>键盘设置</source>
        <translation>Réglages des touches</translation>
    </message>
    <message>
        <source>磁轴设置</source>
        <translation>Switchs magnétiques</translation>
    </message>
    <message>
        <source>宏设置</source>
        <translation>Macros</translation>
    </message>
    <message>
        <source>灯效设置</source>
        <translation>Réglages d’éclairage</translation>
    </message>
    <message>
        <source>关于</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>用户</source>
        <translation>Utilisateur</translation>
    </message>
    <message>
        <source>返回</source>
        <translation>Retour</translation>
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
        <translation>Appairer</translation>
    </message>
    <message>
        <source>恢复默认</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>行程校准</source>
        <translation>Calibration</translation>
    </message>
    <message>
        <source>灯光设置</source>
        <translation>Réglages de lumière</translation>
    </message>
</context>
<context>
    <name>FrameDeviceShow</name>
    <message>
        <source>剩余电量</source>
        <translation>Batterie restante&#xa0;</translation>
    </message>
</context>
<context>
    <name>FrameKeySetting</name>
    <message>
        <source>自定义</source>
        <translation>Personnalisé</translation>
    </message>
    <message>
        <source>高级键</source>
        <translation>Avancées</translation>
    </message>
    <message>
        <source>其他设置</source>
        <translation>Autres</translation>
    </message>
    <message>
        <source>Fn层设置</source>
        <translation>Couche Fn</translation>
    </message>
    <message>
        <source>自定义/Fn层设置</source>
        <translation>Personnalisé / couche Fn</translation>
    </message>
    <message>
        <source>*首先点击选择上方按键，在弹出的对话框中可选择组合键、宏设置、系统功能、鼠标功能进行改建设置</source>
        <translation>*Cliquez d’abord sur une touche ci-dessus, puis choisissez dans la fenêtre une combinaison, une macro, une fonction système ou souris</translation>
    </message>
    <message>
        <source>*右键点击按键可清除设置、禁用按键或取消禁用</source>
        <translation>*Clic droit sur une touche pour effacer son réglage, la désactiver ou la réactiver</translation>
    </message>
    <message>
        <source>动态键程(DKS)</source>
        <translation>Frappe dynamique (DKS)</translation>
    </message>
    <message>
        <source>按住/单击(MT)</source>
        <translation>Mod-Tap (MT)</translation>
    </message>
    <message>
        <source>切换开关(TGL)</source>
        <translation>Bascule (TGL)</translation>
    </message>
    <message>
        <source>Fn层按键设置</source>
        <translation>Touches de la couche Fn</translation>
    </message>
    <message>
        <source>自定义按键</source>
        <translation>Touches personnalisées</translation>
    </message>
</context>
<context>
    <name>FrameLight</name>
    <message>
        <source>点击按键上色，拖动可给多个按键上色</source>
        <translation>Cliquez sur une touche pour la colorer, ou faites glisser sur plusieurs</translation>
    </message>
    <message>
        <source>我的作品</source>
        <translation>Mes créations</translation>
    </message>
    <message>
        <source>颜色:</source>
        <translation>Couleur&#xa0;:</translation>
    </message>
    <message>
        <source>取色器：</source>
        <translation>Pipette&#xa0;:</translation>
    </message>
    <message>
        <source>随机颜色：</source>
        <translation>Couleur aléatoire&#xa0;:</translation>
    </message>
    <message>
        <source>清除设置</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>写入层(图):</source>
        <translation>Écrire dans&#xa0;:</translation>
    </message>
    <message>
        <source>图1</source>
        <translation>Img 1</translation>
    </message>
    <message>
        <source>图2</source>
        <translation>Img 2</translation>
    </message>
    <message>
        <source>图3</source>
        <translation>Img 3</translation>
    </message>
    <message>
        <source>图4</source>
        <translation>Img 4</translation>
    </message>
    <message>
        <source>图5</source>
        <translation>Img 5</translation>
    </message>
    <message>
        <source>读取层(图):</source>
        <translation>Lire depuis&#xa0;:</translation>
    </message>
    <message>
        <source>作品名称:</source>
        <translation>Nom&#xa0;:</translation>
    </message>
    <message>
        <source>更新</source>
        <translation>Mettre à jour</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>还没有作品，给按键上色后点击“保存”</source>
        <translation>Aucune création. Colorez des touches, puis cliquez sur Enregistrer</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>确认要删除此作品吗？</source>
        <translation>Supprimer cette création&#xa0;?</translation>
    </message>
    <message>
        <source>我的作品%1</source>
        <translation>Ma création %1</translation>
    </message>
    <message>
        <source>作品已保存</source>
        <translation>Création enregistrée</translation>
    </message>
    <message>
        <source>把现在的颜色写入键盘的这一层</source>
        <translation>Enregistre les couleurs affichées dans cette couche du clavier</translation>
    </message>
    <message>
        <source>显示键盘这一层里的颜色</source>
        <translation>Affiche les couleurs que contient cette couche du clavier</translation>
    </message>
</context>
<context>
    <name>FrameMacro</name>
    <message>
        <source>宏设置</source>
        <translation>Macros</translation>
    </message>
    <message>
        <source>抬起</source>
        <translation>Relâchement</translation>
    </message>
    <message>
        <source>按下</source>
        <translation>Appui</translation>
    </message>
    <message>
        <source>延迟</source>
        <translation>Délai</translation>
    </message>
    <message>
        <source>开始录制</source>
        <translation>Démarrer</translation>
    </message>
    <message>
        <source>插入</source>
        <translation>Insérer</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>清空</source>
        <translation>Vider</translation>
    </message>
    <message>
        <source>设置固定延迟(ms):</source>
        <translation>Délai fixe (ms)&#xa0;:</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>新建宏</source>
        <translation>Nouvelle macro</translation>
    </message>
    <message>
        <source>停止录制</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>点击“开始录制”后按下按键，或点击“插入”添加事件</source>
        <translation>Cliquez sur «&#xa0;Démarrer&#xa0;» et appuyez sur des touches, ou sur «&#xa0;Insérer&#xa0;» pour ajouter un événement</translation>
    </message>
    <message>
        <source>请在左侧选择一个宏</source>
        <translation>Choisissez une macro à gauche</translation>
    </message>
    <message>
        <source>占用</source>
        <translation>Utilisé&#xa0;</translation>
    </message>
    <message>
        <source>字节</source>
        <translation>octets</translation>
    </message>
    <message>
        <source>录制键盘和鼠标按键，再次点击结束</source>
        <translation>Enregistre les touches et les boutons de souris jusqu’au prochain appui</translation>
    </message>
    <message>
        <source>把所有延迟都设为右侧的值</source>
        <translation>Règle tous les délais sur la valeur à droite</translation>
    </message>
</context>
<context>
    <name>FrameMagic</name>
    <message>
        <source>行程设置</source>
        <translation>Point d’activation</translation>
    </message>
    <message>
        <source>死区设置</source>
        <translation>Zones mortes</translation>
    </message>
    <message>
        <source>轴体设置</source>
        <translation>Type de switch</translation>
    </message>
    <message>
        <source>增稳算法</source>
        <translation>Stabilisation</translation>
    </message>
    <message>
        <source>模拟测试</source>
        <translation>Test</translation>
    </message>
    <message>
        <source>已选中按键的数量</source>
        <translation>Touches sélectionnées&#xa0;</translation>
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
        <translation>Switch mécanique</translation>
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
        <translation>Magnétique extra-plat</translation>
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
        <translation>Personnalisé</translation>
    </message>
</context>
<context>
    <name>FrameMain</name>
    <message>
        <source>键程设置(全局)</source>
        <translation>Point d’activation (global)</translation>
    </message>
</context>
<context>
    <name>FrameSystemInfo</name>
    <message>
        <source>系统设置</source>
        <translation>Paramètres système</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>开机时自动开启本程序</source>
        <translation>Lancer ce programme au démarrage</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>HubTray</name>
    <message>
        <source>显示窗口</source>
        <translation>Afficher la fenêtre</translation>
    </message>
    <message>
        <source>隐藏窗口</source>
        <translation>Masquer la fenêtre</translation>
    </message>
    <message>
        <source>退出程序</source>
        <translation>Quitter</translation>
    </message>
</context>
<context>
    <name>KeyBubble</name>
    <message>
        <source>系统按键</source>
        <translation>Touche système</translation>
    </message>
    <message>
        <source>动态键程</source>
        <translation>Frappe dynamique</translation>
    </message>
    <message>
        <source>按住单击</source>
        <translation>Mod-Tap</translation>
    </message>
    <message>
        <source>切换开关</source>
        <translation>Bascule</translation>
    </message>
    <message>
        <source>宏设置</source>
        <translation>Macros</translation>
    </message>
</context>
<context>
    <name>KeyTestPage</name>
    <message>
        <source>行程测试</source>
        <translation>Test de course</translation>
    </message>
    <message>
        <source>按键测试</source>
        <translation>Test des touches</translation>
    </message>
    <message>
        <source>输入值</source>
        <translation>Saisie</translation>
    </message>
    <message>
        <source>按下任意按键。无线连接下没有实时行程数据。</source>
        <translation>Appuyez sur une touche. En sans-fil, aucune donnée de course en direct.</translation>
    </message>
</context>
<context>
    <name>LightWorksModel</name>
    <message>
        <source>删除</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>预览图,作品名称,管理</source>
        <translation>Aperçu,Nom,Gérer</translation>
    </message>
</context>
<context>
    <name>LinearFixing1</name>
    <message>
        <source>行程校准操作指南</source>
        <translation>Guide de calibration de la course</translation>
    </message>
    <message>
        <source>请依次将每个按键轻按到底并停留至少1秒钟，直到按键变为橙色（表示该按键校准成功），请勿遗漏，可重复按按键。无线下不支持按键校准个数提示。校准过程中请勿拔出数据线。</source>
        <translation>Enfoncez doucement chaque touche à fond, l’une après l’autre, et maintenez-la au moins 1 seconde jusqu’à ce qu’elle devienne orange (touche calibrée). N’en oubliez aucune&#xa0;; vous pouvez recommencer une touche. En sans-fil, le nombre de touches calibrées n’est pas indiqué. Ne débranchez pas le câble pendant la calibration.</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>开始校准</source>
        <translation>Lancer la calibration</translation>
    </message>
</context>
<context>
    <name>LinearFixing2</name>
    <message>
        <source>行程校准</source>
        <translation>Calibration</translation>
    </message>
    <message>
        <source>请依次将每个按键轻按到底并停留至少1秒钟，直到按键变为橙色（表示该按键校准成功），请勿遗漏，可重复按按键。无线下不支持按键校准个数提示。校准过程中请勿拔出数据线。</source>
        <translation>Enfoncez doucement chaque touche à fond, l’une après l’autre, et maintenez-la au moins 1 seconde jusqu’à ce qu’elle devienne orange (touche calibrée). N’en oubliez aucune&#xa0;; vous pouvez recommencer une touche. En sans-fil, le nombre de touches calibrées n’est pas indiqué. Ne débranchez pas le câble pendant la calibration.</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>完成校准</source>
        <translation>Terminer la calibration</translation>
    </message>
</context>
<context>
    <name>MacroItem</name>
    <message>
        <source>重命名</source>
        <translation>Renommer</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Supprimer</translation>
    </message>
</context>
<context>
    <name>MacroSquare</name>
    <message>
        <source>插入</source>
        <translation>Insérer</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>延迟</source>
        <translation>Délai</translation>
    </message>
    <message>
        <source>左键</source>
        <translation>Gauche</translation>
    </message>
    <message>
        <source>右键</source>
        <translation>Droit</translation>
    </message>
    <message>
        <source>中键</source>
        <translation>Milieu</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>语言</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>系统设置</source>
        <translation>Paramètres système</translation>
    </message>
    <message>
        <source>最小化</source>
        <translation>Réduire</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>搜索设备</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>我的设备</source>
        <translation>Mes appareils </translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>确定要退出 ORBE 驱动程序？</source>
        <translation>Voulez-vous vraiment quitter le pilote ORBE&#xa0;?</translation>
    </message>
    <message>
        <source>正在搜索设备</source>
        <translation>Recherche d’appareils</translation>
    </message>
    <message>
        <source>向左滚动</source>
        <translation>Défiler à gauche</translation>
    </message>
    <message>
        <source>向右滚动</source>
        <translation>Défiler à droite</translation>
    </message>
    <message>
        <source>返回</source>
        <translation>Retour</translation>
    </message>
</context>
<context>
    <name>MessageBox</name>
    <message>
        <source>是</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>否</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>ModuleAddMacroSquare</name>
    <message>
        <source>请选择添加宏事件类型</source>
        <translation>Choisissez le type d’événement</translation>
    </message>
    <message>
        <source>键盘按键</source>
        <translation>Touche du clavier</translation>
    </message>
    <message>
        <source>请按下按键......</source>
        <translation>Appuyez sur une touche…</translation>
    </message>
    <message>
        <source>鼠标按键</source>
        <translation>Bouton de souris</translation>
    </message>
    <message>
        <source>左键</source>
        <translation>Gauche</translation>
    </message>
    <message>
        <source>中键</source>
        <translation>Milieu</translation>
    </message>
    <message>
        <source>右键</source>
        <translation>Droit</translation>
    </message>
    <message>
        <source>鼠标位置</source>
        <translation>Position de la souris</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Annuler</translation>
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
        <translation>Appui (mm)</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Enregistrer</translation>
    </message>
</context>
<context>
    <name>ModuleDKSItem</name>
    <message>
        <source>按下触发</source>
        <translation>Enfoncée au-delà de l’activation</translation>
    </message>
    <message>
        <source>按到底部</source>
        <translation>Enfoncée à fond</translation>
    </message>
    <message>
        <source>离开底部</source>
        <translation>Quitte le fond</translation>
    </message>
    <message>
        <source>回到顶部</source>
        <translation>De retour en haut</translation>
    </message>
    <message>
        <source>未设置功能</source>
        <translation>Non définie</translation>
    </message>
    <message>
        <source>已开启</source>
        <translation>Activé</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Désactivé</translation>
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
        <translation>Enfoncée au-delà de l’activation</translation>
    </message>
    <message>
        <source>按到底部</source>
        <translation>Enfoncée à fond</translation>
    </message>
    <message>
        <source>离开底部</source>
        <translation>Quitte le fond</translation>
    </message>
    <message>
        <source>回到顶部</source>
        <translation>De retour en haut</translation>
    </message>
</context>
<context>
    <name>ModuleEfColor</name>
    <message>
        <source>系统默认</source>
        <translation>Par défaut</translation>
    </message>
    <message>
        <source>自定义</source>
        <translation>Personnalisé</translation>
    </message>
    <message>
        <source>单键</source>
        <translation>Touche unique</translation>
    </message>
    <message>
        <source>灯带灯效设置</source>
        <translation>Bande lumineuse</translation>
    </message>
    <message>
        <source>灯效：</source>
        <translation>Effet&#xa0;:</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>常亮</source>
        <translation>Fixe</translation>
    </message>
    <message>
        <source>呼吸</source>
        <translation>Respiration</translation>
    </message>
    <message>
        <source>川流不息</source>
        <translation>Flux</translation>
    </message>
    <message>
        <source>霓虹</source>
        <translation>Néon</translation>
    </message>
    <message>
        <source>光波</source>
        <translation>Vague</translation>
    </message>
    <message>
        <source>色彩：</source>
        <translation>Couleur&#xa0;:</translation>
    </message>
    <message>
        <source>炫彩</source>
        <translation>RGB</translation>
    </message>
    <message>
        <source>亮度：</source>
        <translation>Luminosité&#xa0;:</translation>
    </message>
    <message>
        <source>速度：</source>
        <translation>Vitesse&#xa0;:</translation>
    </message>
    <message>
        <source>颜色%1</source>
        <translation>Couleur %1</translation>
    </message>
    <message>
        <source>取色器</source>
        <translation>Sélecteur de couleur</translation>
    </message>
</context>
<context>
    <name>ModuleEfLumi</name>
    <message>
        <source>灯光亮度</source>
        <translation>Luminosité</translation>
    </message>
</context>
<context>
    <name>ModuleEfMode</name>
    <message>
        <source>灯效模式</source>
        <translation>Mode d’éclairage</translation>
    </message>
    <message>
        <source>关灯</source>
        <translation>Éteindre</translation>
    </message>
    <message>
        <source>灯光播放模式:</source>
        <translation>Mode de lecture&#xa0;:</translation>
    </message>
    <message>
        <source>常亮</source>
        <translation>Fixe</translation>
    </message>
    <message>
        <source>呼吸</source>
        <translation>Respiration</translation>
    </message>
    <message>
        <source>流星</source>
        <translation>Météore</translation>
    </message>
    <message>
        <source>涟漪</source>
        <translation>Ondulation</translation>
    </message>
    <message>
        <source>极光</source>
        <translation>Aurore</translation>
    </message>
    <message>
        <source>雨滴</source>
        <translation>Gouttes de pluie</translation>
    </message>
    <message>
        <source>聚合</source>
        <translation>Convergence</translation>
    </message>
    <message>
        <source>川流不息</source>
        <translation>Flux</translation>
    </message>
    <message>
        <source>霓虹</source>
        <translation>Néon</translation>
    </message>
    <message>
        <source>光波</source>
        <translation>Vague</translation>
    </message>
    <message>
        <source>繁星点点</source>
        <translation>Ciel étoilé</translation>
    </message>
    <message>
        <source>如影随形</source>
        <translation>Ombre</translation>
    </message>
    <message>
        <source>正弦波</source>
        <translation>Onde sinusoïdale</translation>
    </message>
    <message>
        <source>彩泉涌动</source>
        <translation>Fontaine de couleurs</translation>
    </message>
    <message>
        <source>百花争艳</source>
        <translation>Floraison</translation>
    </message>
    <message>
        <source>一石二鸟</source>
        <translation>Coup double</translation>
    </message>
    <message>
        <source>峰回路转</source>
        <translation>Chemin sinueux</translation>
    </message>
    <message>
        <source>斜风细雨</source>
        <translation>Bruine</translation>
    </message>
    <message>
        <source>踏雪无痕</source>
        <translation>Neige sans trace</translation>
    </message>
    <message>
        <source>层出不穷</source>
        <translation>Couches</translation>
    </message>
    <message>
        <source>光影</source>
        <translation>Clair-obscur</translation>
    </message>
    <message>
        <source>音乐律动</source>
        <translation>Rythme musical</translation>
    </message>
    <message>
        <source>自定义</source>
        <translation>Personnalisé</translation>
    </message>
    <message>
        <source>左</source>
        <translation>Gauche</translation>
    </message>
    <message>
        <source>右</source>
        <translation>Droite</translation>
    </message>
    <message>
        <source>上</source>
        <translation>Haut</translation>
    </message>
    <message>
        <source>下</source>
        <translation>Bas</translation>
    </message>
    <message>
        <source>Z形</source>
        <translation>En Z</translation>
    </message>
    <message>
        <source>回形</source>
        <translation>Spirale</translation>
    </message>
    <message>
        <source>向内</source>
        <translation>Vers l’intérieur</translation>
    </message>
    <message>
        <source>向外</source>
        <translation>Vers l’extérieur</translation>
    </message>
    <message>
        <source>向右</source>
        <translation>Vers la droite</translation>
    </message>
    <message>
        <source>向左</source>
        <translation>Vers la gauche</translation>
    </message>
    <message>
        <source>图案1</source>
        <translation>Image 1</translation>
    </message>
    <message>
        <source>图案2</source>
        <translation>Image 2</translation>
    </message>
    <message>
        <source>图案3</source>
        <translation>Image 3</translation>
    </message>
    <message>
        <source>图案4</source>
        <translation>Image 4</translation>
    </message>
    <message>
        <source>图案5</source>
        <translation>Image 5</translation>
    </message>
    <message>
        <source>顺时针</source>
        <translation>Sens horaire</translation>
    </message>
    <message>
        <source>逆时针</source>
        <translation>Sens antihoraire</translation>
    </message>
    <message>
        <source>无</source>
        <translation>Aucun</translation>
    </message>
</context>
<context>
    <name>ModuleEfSpeed</name>
    <message>
        <source>灯光速度</source>
        <translation>Vitesse</translation>
    </message>
</context>
<context>
    <name>ModuleGenKeymapping</name>
    <message>
        <source>上一曲</source>
        <translation>Piste précédente</translation>
    </message>
    <message>
        <source>下一曲</source>
        <translation>Piste suivante</translation>
    </message>
    <message>
        <source>播放/暂停</source>
        <translation>Lecture/Pause</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>Arrêt</translation>
    </message>
    <message>
        <source>静音</source>
        <translation>Muet</translation>
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
        <translation>Lecteur multimédia</translation>
    </message>
    <message>
        <source>计算器</source>
        <translation>Calculatrice</translation>
    </message>
    <message>
        <source>邮件</source>
        <translation>Messagerie</translation>
    </message>
    <message>
        <source>我的电脑</source>
        <translation>Ce PC</translation>
    </message>
    <message>
        <source>搜索</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>主页</source>
        <translation>Page d’accueil</translation>
    </message>
    <message>
        <source>后退</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>前进</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>Actualiser</translation>
    </message>
    <message>
        <source>收藏</source>
        <translation>Favoris</translation>
    </message>
    <message>
        <source>亮度+</source>
        <translation>Luminosité de l’écran&#xa0;+</translation>
    </message>
    <message>
        <source>亮度-</source>
        <translation>Luminosité de l’écran&#xa0;−</translation>
    </message>
    <message>
        <source>放大</source>
        <translation>Zoom avant</translation>
    </message>
    <message>
        <source>缩小</source>
        <translation>Zoom arrière</translation>
    </message>
    <message>
        <source>呼出Siri</source>
        <translation>Appeler Siri</translation>
    </message>
    <message>
        <source>切换输入法</source>
        <translation>Changer de méthode de saisie</translation>
    </message>
    <message>
        <source>返回</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>Fn键锁屏</source>
        <translation>Verrouillage Fn</translation>
    </message>
    <message>
        <source>锁屏</source>
        <translation>Verrouiller l’écran</translation>
    </message>
    <message>
        <source>R-Fn键</source>
        <translation>Touche R-Fn</translation>
    </message>
    <message>
        <source>DPI-Loop</source>
        <translation>DPI en boucle</translation>
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
        <translation>Alimentation</translation>
    </message>
    <message>
        <source>睡眠</source>
        <translation>Veille</translation>
    </message>
    <message>
        <source>唤醒</source>
        <translation>Réveil</translation>
    </message>
    <message>
        <source>Profile-Value</source>
        <translation>Valeur du profil</translation>
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
        <translation>Profils en boucle</translation>
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
        <translation>Touche L-Fn</translation>
    </message>
    <message>
        <source>恢复出厂设置</source>
        <translation>Réglages d’usine</translation>
    </message>
    <message>
        <source>锁Win</source>
        <translation>Verrouiller Win</translation>
    </message>
    <message>
        <source>切换Win</source>
        <translation>Passer à Win</translation>
    </message>
    <message>
        <source>切换Mac</source>
        <translation>Passer à Mac</translation>
    </message>
    <message>
        <source>系统切换</source>
        <translation>Changer de système</translation>
    </message>
    <message>
        <source>Check Battery</source>
        <translation>Vérifier la batterie</translation>
    </message>
    <message>
        <source>WASD切换</source>
        <translation>Basculer WASD</translation>
    </message>
    <message>
        <source>Fn层切换</source>
        <translation>Basculer la couche Fn</translation>
    </message>
    <message>
        <source>设备节能</source>
        <translation>Économie d’énergie</translation>
    </message>
    <message>
        <source>APP CTRL切换</source>
        <translation>Basculer APP CTRL</translation>
    </message>
    <message>
        <source>背光开/关</source>
        <translation>Rétroéclairage marche/arrêt</translation>
    </message>
    <message>
        <source>背光灯效循环</source>
        <translation>Effets en boucle</translation>
    </message>
    <message>
        <source>背光灯效+</source>
        <translation>Effet&#xa0;+</translation>
    </message>
    <message>
        <source>背光灯效-</source>
        <translation>Effet&#xa0;−</translation>
    </message>
    <message>
        <source>背光亮度循环</source>
        <translation>Luminosité en boucle</translation>
    </message>
    <message>
        <source>背光亮度+</source>
        <translation>Luminosité du rétroéclairage&#xa0;+</translation>
    </message>
    <message>
        <source>背光亮度-</source>
        <translation>Luminosité du rétroéclairage&#xa0;−</translation>
    </message>
    <message>
        <source>背光速度循环</source>
        <translation>Vitesse en boucle</translation>
    </message>
    <message>
        <source>背光速度-</source>
        <translation>Vitesse du rétroéclairage&#xa0;−</translation>
    </message>
    <message>
        <source>背光速度+</source>
        <translation>Vitesse du rétroéclairage&#xa0;+</translation>
    </message>
    <message>
        <source>背光方向循环</source>
        <translation>Direction en boucle</translation>
    </message>
    <message>
        <source>背光向左</source>
        <translation>Effet vers la gauche</translation>
    </message>
    <message>
        <source>背光向右</source>
        <translation>Effet vers la droite</translation>
    </message>
    <message>
        <source>背光颜色循环</source>
        <translation>Couleurs en boucle</translation>
    </message>
    <message>
        <source>背光颜色+</source>
        <translation>Couleur&#xa0;+</translation>
    </message>
    <message>
        <source>背光颜色-</source>
        <translation>Couleur&#xa0;−</translation>
    </message>
    <message>
        <source>Use Pic 0</source>
        <translation>Utiliser l’image 0</translation>
    </message>
    <message>
        <source>Use Pic 1</source>
        <translation>Utiliser l’image 1</translation>
    </message>
    <message>
        <source>Use Pic 2</source>
        <translation>Utiliser l’image 2</translation>
    </message>
    <message>
        <source>Use Pic 3</source>
        <translation>Utiliser l’image 3</translation>
    </message>
    <message>
        <source>Use Pic 4</source>
        <translation>Utiliser l’image 4</translation>
    </message>
    <message>
        <source>Use Pic</source>
        <translation>Utiliser l’image</translation>
    </message>
    <message>
        <source>侧光开/关</source>
        <translation>Éclairage latéral marche/arrêt</translation>
    </message>
    <message>
        <source>侧光亮度循环</source>
        <translation>Luminosité latérale en boucle</translation>
    </message>
    <message>
        <source>侧光速度循环</source>
        <translation>Vitesse latérale en boucle</translation>
    </message>
    <message>
        <source>侧光速度+</source>
        <translation>Vitesse latérale&#xa0;+</translation>
    </message>
    <message>
        <source>侧光速度-</source>
        <translation>Vitesse latérale&#xa0;−</translation>
    </message>
    <message>
        <source>侧光颜色循环</source>
        <translation>Couleurs latérales en boucle</translation>
    </message>
    <message>
        <source>侧光颜色+</source>
        <translation>Couleur latérale&#xa0;+</translation>
    </message>
    <message>
        <source>侧光颜色-</source>
        <translation>Couleur latérale&#xa0;−</translation>
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
        <translation>Filaire</translation>
    </message>
    <message>
        <source>有线-蓝牙-2.4G</source>
        <translation>Filaire-Bluetooth-2.4G</translation>
    </message>
    <message>
        <source>2.4G配对</source>
        <translation>Appairage 2.4G</translation>
    </message>
    <message>
        <source>蓝牙配对</source>
        <translation>Appairage Bluetooth</translation>
    </message>
    <message>
        <source>Insert键</source>
        <translation>Touche Inser</translation>
    </message>
    <message>
        <source>Print Screen键</source>
        <translation>Touche Impr écran</translation>
    </message>
    <message>
        <source>左键单击</source>
        <translation>Clic gauche</translation>
    </message>
    <message>
        <source>右键单击</source>
        <translation>Clic droit</translation>
    </message>
    <message>
        <source>中键按下</source>
        <translation>Clic central</translation>
    </message>
    <message>
        <source>光标前进</source>
        <translation>Souris suivant</translation>
    </message>
    <message>
        <source>光标后退</source>
        <translation>Souris précédent</translation>
    </message>
    <message>
        <source>滚轮-向左</source>
        <translation>Molette gauche</translation>
    </message>
    <message>
        <source>滚轮-向右</source>
        <translation>Molette droite</translation>
    </message>
    <message>
        <source>滚轮-向上</source>
        <translation>Molette haut</translation>
    </message>
    <message>
        <source>滚轮-向下</source>
        <translation>Molette bas</translation>
    </message>
    <message>
        <source>向上滚屏</source>
        <translation>Défiler vers le haut</translation>
    </message>
    <message>
        <source>向下滚屏</source>
        <translation>Défiler vers le bas</translation>
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
        <translation>Macros</translation>
    </message>
    <message>
        <source>功能</source>
        <translation>Fonction&#xa0;</translation>
    </message>
    <message>
        <source>鼠标</source>
        <translation>Souris&#xa0;</translation>
    </message>
    <message>
        <source>组合</source>
        <translation>Combinaison&#xa0;</translation>
    </message>
</context>
<context>
    <name>ModuleGeneralMasker</name>
    <message>
        <source>对话框</source>
        <translation>Boîte de dialogue</translation>
    </message>
</context>
<context>
    <name>ModuleKeyboard</name>
    <message>
        <source>屏幕键盘</source>
        <translation>Clavier visuel</translation>
    </message>
    <message>
        <source>已选中按键</source>
        <translation>Touche sélectionnée</translation>
    </message>
    <message>
        <source>已修改按键</source>
        <translation>Touche modifiée</translation>
    </message>
    <message>
        <source>已禁用按键</source>
        <translation>Touche désactivée</translation>
    </message>
    <message>
        <source>取消禁用</source>
        <translation>Réactiver la touche</translation>
    </message>
    <message>
        <source>清除设置</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>禁用按键</source>
        <translation>Désactiver la touche</translation>
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
        <translation>Activation (mm)</translation>
    </message>
    <message>
        <source>抬起(mm)</source>
        <translation>Relâchement (mm)</translation>
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
        <translation>Sélectionnez une touche ci-dessus et donnez-lui deux fonctions&#xa0;: appui bref et appui long (combinaisons possibles)</translation>
    </message>
    <message>
        <source>单击</source>
        <translation>Appui</translation>
    </message>
    <message>
        <source>按住</source>
        <translation>Maintien</translation>
    </message>
    <message>
        <source>调整触发“按住&quot;键所需的时间</source>
        <translation>Régler le délai de déclenchement du «&#xa0;maintien&#xa0;»</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>按住超过这段时间才执行“按住”的功能</source>
        <translation>Maintenue plus longtemps, la touche exécute sa fonction «&#xa0;Maintien&#xa0;»</translation>
    </message>
</context>
<context>
    <name>ModuleMacroManager</name>
    <message>
        <source>新建宏</source>
        <translation>Nouvelle macro </translation>
    </message>
</context>
<context>
    <name>ModuleRtSet</name>
    <message>
        <source>RT行程设置(全局)</source>
        <translation>Sensibilité RT (globale)</translation>
    </message>
</context>
<context>
    <name>ModuleScrollValue</name>
    <message>
        <source>数值滚轮</source>
        <translation>Molette de valeurs</translation>
    </message>
</context>
<context>
    <name>ModuleSnapTab</name>
    <message>
        <source>绑定2个选定按键(分别从上面选择)，当两个按键被同时按下时，以最后按下的按键为准</source>
        <translation>Associe 2 touches (à choisir ci-dessus)&#xa0;: si les deux sont enfoncées, la dernière enfoncée l’emporte (SOCD)</translation>
    </message>
    <message>
        <source>选择A键</source>
        <translation>Choisir la touche A</translation>
    </message>
    <message>
        <source>选择B键</source>
        <translation>Choisir la touche B</translation>
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
        <translation>Sélectionnez une touche ci-dessus et réglez sa fonction dans l’un des deux modes&#xa0;: répétition ou maintien</translation>
    </message>
    <message>
        <source>连点</source>
        <translation>Répétition</translation>
    </message>
    <message>
        <source>长按</source>
        <translation>Maintien</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>未设置功能</source>
        <translation>Non définie</translation>
    </message>
</context>
<context>
    <name>ModuleVideoItem</name>
    <message>
        <source>Movie</source>
        <translation>Vidéo</translation>
    </message>
    <message>
        <source>Orbe 7090 操作指南-宏设置</source>
        <translation>Guide Orbe 7090&#xa0;: macros</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Select All</source>
        <translation>&amp;Tout sélectionner</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>&amp;Augmenter</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>&amp;Diminuer</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Co&amp;uper</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>C&amp;oller</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Tout sélectionner</translation>
    </message>
</context>
<context>
    <name>ShellNotices</name>
    <message>
        <source>重试</source>
        <translation>Réessayer</translation>
    </message>
</context>
<context>
    <name>StabilityPage</name>
    <message>
        <source>RT Stab(RT 增稳算法)</source>
        <translation>RT Stab (stabilisation RT)</translation>
    </message>
    <message>
        <source>RT Stab打开后，算法会介入增强轴体底部的稳定性。介入百分比越大，稳定性越强，延迟也会有所增加。</source>
        <translation>RT Stab renforce la stabilité en bas de course. Un pourcentage plus élevé est plus stable et ajoute un peu de latence.</translation>
    </message>
    <message>
        <source>0%(关闭)</source>
        <translation>0% (désactivé)</translation>
    </message>
    <message>
        <source>防误触模式</source>
        <translation>Protection contre les appuis accidentels</translation>
    </message>
    <message>
        <source>(已关闭)</source>
        <translation>(Désactivé)</translation>
    </message>
    <message>
        <source>防止极限性能下桌面抖动误触发或轴体公差可能造成还有0.1mm的行程公差。开启后优化底部按键算法补足行程差值提高键盘稳定性。</source>
        <translation>Évite les déclenchements dus aux vibrations du bureau en réglage extrême et compense une tolérance de 0,1 mm des switchs. Activé, l’algorithme en bas de course compense l’écart et stabilise le clavier.</translation>
    </message>
    <message>
        <source>已开启</source>
        <translation>Activé</translation>
    </message>
    <message>
        <source>已关闭</source>
        <translation>Désactivé</translation>
    </message>
</context>
<context>
    <name>SwitchTypePage</name>
    <message>
        <source>轴体设置</source>
        <translation>Type de switch</translation>
    </message>
    <message>
        <source>更换键盘轴体后，选择对应轴体的按键，点击下方对应的轴体选项进行设置来区分不同轴体</source>
        <translation>Après un changement de switchs, choisissez ci-dessous le type correspondant et cliquez sur les touches concernées</translation>
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
        <translation>Interrupteur</translation>
    </message>
</context>
<context>
    <name>TravelPage</name>
    <message>
        <source>单独设置按下抬起触发行程：</source>
        <translation>Régler activation et relâchement séparément&#xa0;:</translation>
    </message>
    <message>
        <source>全程连续快速触发（RT）</source>
        <translation>Rapid Trigger continu (RT)</translation>
    </message>
    <message>
        <source>启用时，快速触发在您完全松开按键时才会终止。
禁用时，松开按键到轴体触发行程后终止快速触发</source>
        <translation>Activé&#xa0;: le Rapid Trigger ne s’arrête qu’au relâchement complet.
Désactivé&#xa0;: le Rapid Trigger s’arrête quand la touche repasse au-dessus du point d’activation</translation>
    </message>
    <message>
        <source>单独设置按键再次按下触发和松开重置行程</source>
        <translation>Régler l’appui et le relâchement RT séparément</translation>
    </message>
    <message>
        <source>再次按下按键触发所需的行程(mm)</source>
        <translation>Course pour redéclencher (mm)</translation>
    </message>
    <message>
        <source>松开按键重置所需的行程(mm)</source>
        <translation>Course pour réinitialiser (mm)</translation>
    </message>
    <message>
        <source>设置</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>抬起后再按下这段距离即再次触发，越小越灵敏</source>
        <translation>Un appui de cette distance réactive la touche où qu’elle soit&#xa0;; plus petit, plus sensible</translation>
    </message>
    <message>
        <source>按下后抬起这段距离即释放，越小越灵敏</source>
        <translation>Une remontée de cette distance relâche la touche où qu’elle soit&#xa0;; plus petit, plus sensible</translation>
    </message>
    <message>
        <source>按键按到多深时触发</source>
        <translation>Profondeur à laquelle la touche s’active</translation>
    </message>
    <message>
        <source>按键抬到多高时释放</source>
        <translation>Hauteur à laquelle la touche se relâche</translation>
    </message>
</context>
<context>
    <name>TravelRuler</name>
    <message>
        <source>行程测试</source>
        <translation>Test de course</translation>
    </message>
</context>
<context>
    <name>WorkMeter</name>
    <message>
        <source>正在读取键盘</source>
        <translation>Lecture du clavier</translation>
    </message>
    <message>
        <source>正在写入键盘</source>
        <translation>Écriture sur le clavier</translation>
    </message>
</context>
</TS>
