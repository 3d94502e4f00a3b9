<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr_TR" sourcelanguage="zh_CN">
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
        <translation>Komut,Veri uzunluğu,Byte0
Komut no. (Hex),Byte1
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
        <translation>Sekmeler</translation>
    </message>
</context>
<context>
    <name>CustumSlider</name>
    <message>
        <source>滑块</source>
        <translation>Kaydırıcı</translation>
    </message>
</context>
<context>
    <name>DemoDesk</name>
    <message>
        <source>虚拟设备</source>
        <translation>Sanal aygıtlar</translation>
    </message>
    <message>
        <source>插入或拔出虚拟设备：</source>
        <translation>Sanal aygıtları tak veya çıkar:</translation>
    </message>
</context>
<context>
    <name>DialogDeviceConnect</name>
    <message>
        <source>Orbe Studio 设备调试</source>
        <translation>Orbe Studio aygıt hata ayıklama</translation>
    </message>
    <message>
        <source>命令目录</source>
        <translation>Komut kataloğu</translation>
    </message>
</context>
<context>
    <name>FrameAbout</name>
    <message>
        <source>关于</source>
        <translation>Hakkında</translation>
    </message>
    <message>
        <source>设备名称：Orbe 7090</source>
        <translation>Aygıt adı: Orbe 7090</translation>
    </message>
    <message>
        <source>键盘固件版本：V1.0</source>
        <translation>Klavye yazılımı sürümü: V1.0</translation>
    </message>
    <message>
        <source>无线连接器固件版本：V1.0</source>
        <translation>Alıcı yazılımı sürümü: V1.0</translation>
    </message>
    <message>
        <source>当前版本：V1.0</source>
        <translation>Geçerli sürüm: V1.0</translation>
    </message>
    <message>
        <source>检查键盘固件更新</source>
        <translation>Klavye yazılımı güncellemesini denetle</translation>
    </message>
    <message>
        <source>检查无线连接器固件更新</source>
        <translation>Alıcı yazılımı güncellemesini denetle</translation>
    </message>
    <message>
        <source>操作教学</source>
        <translation>Eğitimler</translation>
    </message>
    <message>
        <source>关于Orbe</source>
        <translation>Orbe hakkında</translation>
    </message>
</context>
<context>
    <name>FrameDeviceHolder</name>
    <message>
        <source>首页</source>
        <translation>Ana sayfa</translation>
    </message>
    <message>
        <source>键盘设置</source>
        <translation>Tuş ayarları</translation>
    </message>
    <message>
        <source>磁轴设置</source>
        <translation>Manyetik switch ayarları</translation>
    </message>
    <message>
        <source>宏设置</source>
        <translation>Makro ayarları</translation>
    </message>
    <message>
        <source>灯效设置</source>
        <translation>Aydınlatma ayarları</translation>
    </message>
    <message>
        <source>关于</source>
        <translation>Hakkında</translation>
    </message>
    <message>
        <source>用户</source>
        <translation>Kullanıcı</translation>
    </message>
    <message>
        <source>返回</source>
        <translation>Geri</translation>
    </message>
    <message>
        <source>板载 1</source>
        <translation>Dahili 1</translation>
    </message>
    <message>
        <source>板载 2</source>
        <translation>Dahili 2</translation>
    </message>
    <message>
        <source>板载 3</source>
        <translation>Dahili 3</translation>
    </message>
    <message>
        <source>板载 4</source>
        <translation>Dahili 4</translation>
    </message>
    <message>
        <source>对码</source>
        <translation>Eşleştir</translation>
    </message>
    <message>
        <source>恢复默认</source>
        <translation>Varsayılana dön</translation>
    </message>
    <message>
        <source>行程校准</source>
        <translation>Kalibrasyon</translation>
    </message>
    <message>
        <source>灯光设置</source>
        <translation>Işık ayarları</translation>
    </message>
</context>
<context>
    <name>FrameDeviceShow</name>
    <message>
        <source>剩余电量</source>
        <translation>Kalan pil</translation>
    </message>
</context>
<context>
    <name>FrameSystemInfo</name>
    <message>
        <source>系统设置</source>
        <translation>Sistem ayarları</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Kapat</translation>
    </message>
    <message>
        <source>开机时自动开启本程序</source>
        <translation>Bu programı bilgisayar açılırken başlat</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>İptal</translation>
    </message>
</context>
<context>
    <name>HubTray</name>
    <message>
        <source>显示窗口</source>
        <translation>Pencereyi göster</translation>
    </message>
    <message>
        <source>隐藏窗口</source>
        <translation>Pencereyi gizle</translation>
    </message>
    <message>
        <source>退出程序</source>
        <translation>Çıkış</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>语言</source>
        <translation>Dil</translation>
    </message>
    <message>
        <source>系统设置</source>
        <translation>Sistem ayarları</translation>
    </message>
    <message>
        <source>最小化</source>
        <translation>Simge durumuna küçült</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Kapalı</translation>
    </message>
    <message>
        <source>搜索设备</source>
        <translation>Aygıt ara</translation>
    </message>
    <message>
        <source>我的设备</source>
        <translation>Aygıtlarım</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Bilgi</translation>
    </message>
    <message>
        <source>确定要退出 ORBE 驱动程序？</source>
        <translation>ORBE sürücüsünden çıkmak istediğinize emin misiniz?</translation>
    </message>
    <message>
        <source>正在搜索设备</source>
        <translation>Aygıtlar aranıyor</translation>
    </message>
    <message>
        <source>向左滚动</source>
        <translation>Sola kaydır</translation>
    </message>
    <message>
        <source>向右滚动</source>
        <translation>Sağa kaydır</translation>
    </message>
    <message>
        <source>返回</source>
        <translation>Geri</translation>
    </message>
</context>
<context>
    <name>ModuleGenKeymapping</name>
    <message>
        <source>上一曲</source>
        <translation>Önceki parça</translation>
    </message>
    <message>
        <source>下一曲</source>
        <translation>Sonraki parça</translation>
    </message>
    <message>
        <source>播放/暂停</source>
        <translation>Oynat/Duraklat</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>Durdur</translation>
    </message>
    <message>
        <source>静音</source>
        <translation>Sessiz</translation>
    </message>
    <message>
        <source>音量+</source>
        <translation>Ses +</translation>
    </message>
    <message>
        <source>音量-</source>
        <translation>Ses -</translation>
    </message>
    <message>
        <source>播放器</source>
        <translation>Medya oynatıcı</translation>
    </message>
    <message>
        <source>计算器</source>
        <translation>Hesap makinesi</translation>
    </message>
    <message>
        <source>邮件</source>
        <translation>Posta</translation>
    </message>
    <message>
        <source>我的电脑</source>
        <translation>Bilgisayarım</translation>
    </message>
    <message>
        <source>搜索</source>
        <translation>Ara</translation>
    </message>
    <message>
        <source>主页</source>
        <translation>Giriş sayfası</translation>
    </message>
    <message>
        <source>后退</source>
        <translation>Geri</translation>
    </message>
    <message>
        <source>前进</source>
        <translation>İleri</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>Yenile</translation>
    </message>
    <message>
        <source>收藏</source>
        <translation>Sık kullanılanlar</translation>
    </message>
    <message>
        <source>亮度+</source>
        <translation>Parlaklık +</translation>
    </message>
    <message>
        <source>亮度-</source>
        <translation>Parlaklık -</translation>
    </message>
    <message>
        <source>放大</source>
        <translation>Yakınlaştır</translation>
    </message>
    <message>
        <source>缩小</source>
        <translation>Uzaklaştır</translation>
    </message>
    <message>
        <source>呼出Siri</source>
        <translation>Siri’yi çağır</translation>
    </message>
    <message>
        <source>切换输入法</source>
        <translation>Giriş yöntemini değiştir</translation>
    </message>
    <message>
        <source>返回</source>
        <translation>Geri</translation>
    </message>
    <message>
        <source>Fn键锁屏</source>
        <translation>Fn kilidi</translation>
    </message>
    <message>
        <source>锁屏</source>
        <translation>Ekranı kilitle</translation>
    </message>
    <message>
        <source>R-Fn键</source>
        <translation>R-Fn tuşu</translation>
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
        <translation>Güç</translation>
    </message>
    <message>
        <source>睡眠</source>
        <translation>Uyku</translation>
    </message>
    <message>
        <source>唤醒</source>
        <translation>Uyandır</translation>
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
        <translation>L-Fn tuşu</translation>
    </message>
    <message>
        <source>恢复出厂设置</source>
        <translation>Fabrika ayarları</translation>
    </message>
    <message>
        <source>锁Win</source>
        <translation>Win kilidi</translation>
    </message>
    <message>
        <source>切换Win</source>
        <translation>Win’e geç</translation>
    </message>
    <message>
        <source>切换Mac</source>
        <translation>Mac’e geç</translation>
    </message>
    <message>
        <source>系统切换</source>
        <translation>Sistem değiştir</translation>
    </message>
    <message>
        <source>Check Battery</source>
        <translation>Pili denetle</translation>
    </message>
    <message>
        <source>WASD切换</source>
        <translation>WASD değiştir</translation>
    </message>
    <message>
        <source>Fn层切换</source>
        <translation>Fn katmanını değiştir</translation>
    </message>
    <message>
        <source>设备节能</source>
        <translation>Güç tasarrufu</translation>
    </message>
    <message>
        <source>APP CTRL切换</source>
        <translation>APP CTRL değiştir</translation>
    </message>
    <message>
        <source>背光开/关</source>
        <translation>Arka ışık aç/kapat</translation>
    </message>
    <message>
        <source>背光灯效循环</source>
        <translation>Arka ışık efekt döngüsü</translation>
    </message>
    <message>
        <source>背光灯效+</source>
        <translation>Arka ışık efekti +</translation>
    </message>
    <message>
        <source>背光灯效-</source>
        <translation>Arka ışık efekti -</translation>
    </message>
    <message>
        <source>背光亮度循环</source>
        <translation>Arka ışık parlaklık döngüsü</translation>
    </message>
    <message>
        <source>背光亮度+</source>
        <translation>Arka ışık parlaklığı +</translation>
    </message>
    <message>
        <source>背光亮度-</source>
        <translation>Arka ışık parlaklığı -</translation>
    </message>
    <message>
        <source>背光速度循环</source>
        <translation>Arka ışık hız döngüsü</translation>
    </message>
    <message>
        <source>背光速度-</source>
        <translation>Arka ışık hızı -</translation>
    </message>
    <message>
        <source>背光速度+</source>
        <translation>Arka ışık hızı +</translation>
    </message>
    <message>
        <source>背光方向循环</source>
        <translation>Arka ışık yön döngüsü</translation>
    </message>
    <message>
        <source>背光向左</source>
        <translation>Arka ışık sola</translation>
    </message>
    <message>
        <source>背光向右</source>
        <translation>Arka ışık sağa</translation>
    </message>
    <message>
        <source>背光颜色循环</source>
        <translation>Arka ışık renk döngüsü</translation>
    </message>
    <message>
        <source>背光颜色+</source>
        <translation>Arka ışık rengi +</translation>
    </message>
    <message>
        <source>背光颜色-</source>
        <translation>Arka ışık rengi -</translation>
    </message>
    <message>
        <source>Use Pic 0</source>
        <translation>Resim 0 kullan</translation>
    </message>
    <message>
        <source>Use Pic 1</source>
        <translation>Resim 1 kullan</translation>
    </message>
    <message>
        <source>Use Pic 2</source>
        <translation>Resim 2 kullan</translation>
    </message>
    <message>
        <source>Use Pic 3</source>
        <translation>Resim 3 kullan</translation>
    </message>
    <message>
        <source>Use Pic 4</source>
        <translation>Resim 4 kullan</translation>
    </message>
    <message>
        <source>Use Pic</source>
        <translation>Resim kullan</translation>
    </message>
    <message>
        <source>侧光开/关</source>
        <translation>Yan ışık aç/kapat</translation>
    </message>
    <message>
        <source>侧光亮度循环</source>
        <translation>Yan ışık parlaklık döngüsü</translation>
    </message>
    <message>
        <source>侧光速度循环</source>
        <translation>Yan ışık hız döngüsü</translation>
    </message>
    <message>
        <source>侧光速度+</source>
        <translation>Yan ışık hızı +</translation>
    </message>
    <message>
        <source>侧光速度-</source>
        <translation>Yan ışık hızı -</translation>
    </message>
    <message>
        <source>侧光颜色循环</source>
        <translation>Yan ışık renk döngüsü</translation>
    </message>
    <message>
        <source>侧光颜色+</source>
        <translation>Yan ışık rengi +</translation>
    </message>
    <message>
        <source>侧光颜色-</source>
        <translation>Yan ışık rengi -</translation>
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
        <translation>Kablolu</translation>
    </message>
    <message>
        <source>有线-蓝牙-2.4G</source>
        <translation>Kablolu-Bluetooth-2.4G</translation>
    </message>
    <message>
        <source>2.4G配对</source>
        <translation>2.4G eşleştirme</translation>
    </message>
    <message>
        <source>蓝牙配对</source>
        <translation>Bluetooth eşleştirme</translation>
    </message>
    <message>
        <source>Insert键</source>
        <translation>Insert tuşu</translation>
    </message>
    <message>
        <source>Print Screen键</source>
        <translation>Print Screen tuşu</translation>
    </message>
    <message>
        <source>左键单击</source>
        <translation>Sol tık</translation>
    </message>
    <message>
        <source>右键单击</source>
        <translation>Sağ tık</translation>
    </message>
    <message>
        <source>中键按下</source>
        <translation>Orta tık</translation>
    </message>
    <message>
        <source>光标前进</source>
        <translation>Fare ileri</translation>
    </message>
    <message>
        <source>光标后退</source>
        <translation>Fare geri</translation>
    </message>
    <message>
        <source>滚轮-向左</source>
        <translation>Tekerlek sola</translation>
    </message>
    <message>
        <source>滚轮-向右</source>
        <translation>Tekerlek sağa</translation>
    </message>
    <message>
        <source>滚轮-向上</source>
        <translation>Tekerlek yukarı</translation>
    </message>
    <message>
        <source>滚轮-向下</source>
        <translation>Tekerlek aşağı</translation>
    </message>
    <message>
        <source>向上滚屏</source>
        <translation>Yukarı kaydır</translation>
    </message>
    <message>
        <source>向下滚屏</source>
        <translation>Aşağı kaydır</translation>
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
        <translation>Makro ayarları</translation>
    </message>
    <message>
        <source>功能</source>
        <translation>İşlev</translation>
    </message>
    <message>
        <source>鼠标</source>
        <translation>Fare</translation>
    </message>
    <message>
        <source>组合</source>
        <translation>Kombinasyon</translation>
    </message>
</context>
<context>
    <name>ModuleGeneralMasker</name>
    <message>
        <source>对话框</source>
        <translation>İletişim kutusu</translation>
    </message>
</context>
<context>
    <name>ModuleKeyboard</name>
    <message>
        <source>屏幕键盘</source>
        <translation>Ekran klavyesi</translation>
    </message>
    <message>
        <source>已选中按键</source>
        <translation>Seçili tuş</translation>
    </message>
    <message>
        <source>已修改按键</source>
        <translation>Değiştirilmiş tuş</translation>
    </message>
    <message>
        <source>已禁用按键</source>
        <translation>Devre dışı tuş</translation>
    </message>
    <message>
        <source>取消禁用</source>
        <translation>Tuşu etkinleştir</translation>
    </message>
    <message>
        <source>清除设置</source>
        <translation>Ayarı temizle</translation>
    </message>
    <message>
        <source>禁用按键</source>
        <translation>Tuşu devre dışı bırak</translation>
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
        <translation>Değer tekerleği</translation>
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
        <translation>Orbe 7090 kılavuzu: makrolar</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Evet</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Hayır</translation>
    </message>
</context>
<context>
    <name>ToggleButton</name>
    <message>
        <source>开关</source>
        <translation>Anahtar</translation>
    </message>
</context>
</TS>
