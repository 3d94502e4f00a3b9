<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="zh_CN">
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
    <name>DemoDesk</name>
    <message>
        <source>虚拟设备</source>
        <translation>Appareils virtuels</translation>
    </message>
    <message>
        <source>插入或拔出虚拟设备：</source>
        <translation>Brancher ou débrancher des appareils virtuels :</translation>
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
    <name>FrameAbout</name>
    <message>
        <source>关于</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>设备名称：Orbe 7090</source>
        <translation>Nom de l’appareil : Orbe 7090</translation>
    </message>
    <message>
        <source>键盘固件版本：V1.0</source>
        <translation>Version du micrologiciel du clavier : V1.0</translation>
    </message>
    <message>
        <source>无线连接器固件版本：V1.0</source>
        <translation>Version du micrologiciel du récepteur : V1.0</translation>
    </message>
    <message>
        <source>当前版本：V1.0</source>
        <translation>Version actuelle : V1.0</translation>
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
        <translation>Réglages des switches magnétiques</translation>
    </message>
    <message>
        <source>宏设置</source>
        <translation>Réglages des macros</translation>
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
        <translation>Calibrer la course</translation>
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
        <translation>Batterie restante</translation>
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
        <translation>Mes appareils</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>确定要退出 ORBE 驱动程序？</source>
        <translation>Voulez-vous vraiment quitter le pilote ORBE ?</translation>
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
        <translation>Volume +</translation>
    </message>
    <message>
        <source>音量-</source>
        <translation>Volume -</translation>
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
        <translation>Poste de travail</translation>
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
        <translation>Luminosité +</translation>
    </message>
    <message>
        <source>亮度-</source>
        <translation>Luminosité -</translation>
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
        <translation>Rétroéclairage oui/non</translation>
    </message>
    <message>
        <source>背光灯效循环</source>
        <translation>Effets en boucle</translation>
    </message>
    <message>
        <source>背光灯效+</source>
        <translation>Effet +</translation>
    </message>
    <message>
        <source>背光灯效-</source>
        <translation>Effet -</translation>
    </message>
    <message>
        <source>背光亮度循环</source>
        <translation>Luminosité en boucle</translation>
    </message>
    <message>
        <source>背光亮度+</source>
        <translation>Luminosité du rétroéclairage +</translation>
    </message>
    <message>
        <source>背光亮度-</source>
        <translation>Luminosité du rétroéclairage -</translation>
    </message>
    <message>
        <source>背光速度循环</source>
        <translation>Vitesse en boucle</translation>
    </message>
    <message>
        <source>背光速度-</source>
        <translation>Vitesse du rétroéclairage -</translation>
    </message>
    <message>
        <source>背光速度+</source>
        <translation>Vitesse du rétroéclairage +</translation>
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
        <translation>Couleur +</translation>
    </message>
    <message>
        <source>背光颜色-</source>
        <translation>Couleur -</translation>
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
        <translation>Éclairage latéral oui/non</translation>
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
        <translation>Vitesse latérale +</translation>
    </message>
    <message>
        <source>侧光速度-</source>
        <translation>Vitesse latérale -</translation>
    </message>
    <message>
        <source>侧光颜色循环</source>
        <translation>Couleurs latérales en boucle</translation>
    </message>
    <message>
        <source>侧光颜色+</source>
        <translation>Couleur latérale +</translation>
    </message>
    <message>
        <source>侧光颜色-</source>
        <translation>Couleur latérale -</translation>
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
        <translation>Réglages des macros</translation>
    </message>
    <message>
        <source>功能</source>
        <translation>Fonction</translation>
    </message>
    <message>
        <source>鼠标</source>
        <translation>Souris</translation>
    </message>
    <message>
        <source>组合</source>
        <translation>Combinaison</translation>
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
    <name>ModuleScrollValue</name>
    <message>
        <source>数值滚轮</source>
        <translation>Molette de valeurs</translation>
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
        <translation>Guide Orbe 7090 : macros</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Oui</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Non</translation>
    </message>
</context>
<context>
    <name>ToggleButton</name>
    <message>
        <source>开关</source>
        <translation>Interrupteur</translation>
    </message>
</context>
</TS>
