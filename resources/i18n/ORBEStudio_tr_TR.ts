<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr_TR" sourcelanguage="zh_CN">
<context>
    <name>ColorSlider</name>
    <message>
        <source>色相</source>
        <translation>Renk tonu</translation>
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
    <name>DeadZonePage</name>
    <message>
        <source>死区设置</source>
        <translation>Ölü bölgeler</translation>
    </message>
    <message>
        <source>按键死区设定</source>
        <translation>Tuş ölü bölgeleri</translation>
    </message>
    <message>
        <source>触底到抬起前的距离俗称“死区”。死区可减少磁轴因环境干扰带来的断触问题，磁轴的底部可自定义，您可根据个人需求自定义死区，设定之后，此段行程不会触发。</source>
        <translation>Dibe vurma ile kalkma arasındaki mesafeye “ölü bölge” denir. Manyetik switch’in çevresel parazit yüzünden kesilmesini azaltır. İhtiyacınıza göre ayarlayın; bu bölgede tetikleme olmaz.</translation>
    </message>
    <message>
        <source>设置</source>
        <translation>Uygula</translation>
    </message>
    <message>
        <source>顶部死区</source>
        <translation>Üst ölü bölge</translation>
    </message>
    <message>
        <source>底部死区</source>
        <translation>Alt ölü bölge</translation>
    </message>
    <message>
        <source>按键顶部不触发的距离，可防误触</source>
        <translation>Üstte hiçbir şey yapmayan mesafe; yanlış basmalara karşı</translation>
    </message>
    <message>
        <source>按键底部不响应的距离，可防抖动</source>
        <translation>Altta hiçbir şey yapmayan mesafe; basılı tuşun titremesine karşı</translation>
    </message>
</context>
<context>
    <name>DemoBoard</name>
    <message>
        <source>没有插入键盘</source>
        <translation>Takılı klavye yok</translation>
    </message>
    <message>
        <source>虚拟键盘的灯光</source>
        <translation>Sanal klavyenin ışıkları</translation>
    </message>
    <message>
        <source>虚拟键盘</source>
        <translation>Sanal klavye</translation>
    </message>
    <message>
        <source>单击按键即可按下它，部分灯效会作出反应。</source>
        <translation>Basmak için bir tuşa tıklayın; bazı efektler tepki verir.</translation>
    </message>
    <message>
        <source>灯光已关闭</source>
        <translation>Işıklar kapalı</translation>
    </message>
    <message>
        <source>%1 · 亮度 %2% · 速度 %3%</source>
        <translation>%1 · parlaklık %2% · hız %3%</translation>
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
    <message>
        <source>依次按下所有按键</source>
        <translation>Tüm tuşlara sırayla bas</translation>
    </message>
    <message>
        <source>显示键盘的灯光</source>
        <translation>Klavyenin ışıklarını göster</translation>
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
        <translation>2.4G arka ışık kapanma</translation>
    </message>
    <message>
        <source>蓝牙关闭背光</source>
        <translation>Bluetooth arka ışık kapanma</translation>
    </message>
    <message>
        <source>2.4G深度睡眠时间</source>
        <translation>2.4G derin uyku süresi</translation>
    </message>
    <message>
        <source>分钟</source>
        <translation>dk</translation>
    </message>
    <message>
        <source>蓝牙深度睡眠时间</source>
        <translation>Bluetooth derin uyku süresi</translation>
    </message>
    <message>
        <source>按键防抖等级设置</source>
        <translation>Debounce düzeyi</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 dk</translation>
    </message>
    <message>
        <source>键盘每秒向电脑报告的次数，越高延迟越低</source>
        <translation>Klavyenin bilgisayara saniyede kaç kez bildirdiği; yükseldikçe gecikme azalır</translation>
    </message>
    <message>
        <source>不按键多久后关闭背光</source>
        <translation>Tuşa basılmadan ne kadar süre sonra arka ışığın kapanacağı</translation>
    </message>
    <message>
        <source>不按键多久后进入深度睡眠，可省电</source>
        <translation>Tuşa basılmadan ne kadar süre sonra derin uykuya geçileceği; pil tasarrufu sağlar</translation>
    </message>
    <message>
        <source>级别越高越能避免连击，但会增加延迟</source>
        <translation>Daha yüksek düzey çift basmayı daha iyi önler ama gecikmeyi artırır</translation>
    </message>
</context>
<context>
    <name>DeviceTrouble</name>
    <message>
        <source>系统不允许访问此键盘。请将 70-orbehub.rules 复制到 /etc/udev/rules.d，然后重新插拔键盘。</source>
        <translation>Sistem bu klavyeye erişime izin vermiyor. 70-orbehub.rules dosyasını /etc/udev/rules.d klasörüne kopyalayıp klavyeyi yeniden takın.</translation>
    </message>
    <message>
        <source>系统不允许访问此键盘。请检查您的用户权限，然后重新插拔键盘。</source>
        <translation>Sistem bu klavyeye erişime izin vermiyor. Kullanıcı izinlerinizi denetleyip klavyeyi yeniden takın.</translation>
    </message>
    <message>
        <source>已断开</source>
        <translation>Bağlantı kesildi</translation>
    </message>
    <message>
        <source>键盘已断开，重新连接后即可使用。</source>
        <translation>Klavyenin bağlantısı kesildi. Kullanmak için yeniden bağlayın.</translation>
    </message>
    <message>
        <source>没有响应</source>
        <translation>Yanıt vermiyor</translation>
    </message>
    <message>
        <source>键盘没有响应，可能处于休眠状态，请按任意键唤醒。</source>
        <translation>Klavye yanıt vermiyor. Uykuda olabilir: uyandırmak için bir tuşa basın.</translation>
    </message>
    <message>
        <source>没有访问权限</source>
        <translation>Erişim yok</translation>
    </message>
    <message>
        <source>无法打开</source>
        <translation>Açılamıyor</translation>
    </message>
    <message>
        <source>无法打开键盘，可能正被其他程序占用。请关闭该程序后重新插拔键盘。</source>
        <translation>Klavye açılamıyor. Başka bir program kullanıyor olabilir: o programı kapatıp klavyeyi yeniden takın.</translation>
    </message>
    <message>
        <source>键盘</source>
        <translation>Klavye</translation>
    </message>
</context>
<context>
    <name>DialogColorPicker</name>
    <message>
        <source>取色器</source>
        <translation>Renk seçici</translation>
    </message>
    <message>
        <source>按住并拖到屏幕上的任意位置取色</source>
        <translation>Basılı tutun ve renk almak için ekranda herhangi bir yere sürükleyin</translation>
    </message>
    <message>
        <source>完成</source>
        <translation>Bitti</translation>
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
    <name>DialogFNPicker</name>
    <message>
        <source>组合键</source>
        <translation>Tuş kombinasyonu</translation>
    </message>
    <message>
        <source>基本字符</source>
        <translation>Temel tuşlar</translation>
    </message>
    <message>
        <source>拓展字符(按键)</source>
        <translation>Ek tuşlar</translation>
    </message>
    <message>
        <source>宏设置</source>
        <translation>Makrolar</translation>
    </message>
    <message>
        <source>播放方式:</source>
        <translation>Oynatma modu:</translation>
    </message>
    <message>
        <source>循环次数</source>
        <translation>Tekrar sayısı</translation>
    </message>
    <message>
        <source>自动</source>
        <translation>Otomatik</translation>
    </message>
    <message>
        <source>按下</source>
        <translation>Basma</translation>
    </message>
    <message>
        <source>系统功能</source>
        <translation>Sistem işlevleri</translation>
    </message>
    <message>
        <source>鼠标功能</source>
        <translation>Fare işlevleri</translation>
    </message>
    <message>
        <source>设置功能为:</source>
        <translation>İşlevi ayarla:</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>左键</source>
        <translation>Sol</translation>
    </message>
    <message>
        <source>右键</source>
        <translation>Sağ</translation>
    </message>
    <message>
        <source>中键</source>
        <translation>Orta</translation>
    </message>
    <message>
        <source>前移</source>
        <translation>İleri</translation>
    </message>
    <message>
        <source>后移</source>
        <translation>Geri</translation>
    </message>
    <message>
        <source>左滚</source>
        <translation>Tekerlek sola</translation>
    </message>
    <message>
        <source>右滚</source>
        <translation>Tekerlek sağa</translation>
    </message>
    <message>
        <source>上滚</source>
        <translation>Tekerlek yukarı</translation>
    </message>
    <message>
        <source>下滚</source>
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
        <source>自定义按键</source>
        <translation>Özel tuşlar</translation>
    </message>
    <message>
        <source>宏</source>
        <translation>Makro </translation>
    </message>
    <message>
        <source>未录制的宏</source>
        <translation>Kaydedilmemiş makro</translation>
    </message>
</context>
<context>
    <name>DialogVKPicker</name>
    <message>
        <source>基本字符</source>
        <translation>Temel tuşlar</translation>
    </message>
    <message>
        <source>拓展字符</source>
        <translation>Ek tuşlar</translation>
    </message>
    <message>
        <source>组合键：</source>
        <translation>Tuş kombinasyonu:</translation>
    </message>
    <message>
        <source>确认</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>组合键</source>
        <translation>Tuş kombinasyonu</translation>
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
        <translation>Klavye firmware sürümü: V1.0</translation>
    </message>
    <message>
        <source>无线连接器固件版本：V1.0</source>
        <translation>Alıcı firmware sürümü: V1.0</translation>
    </message>
    <message>
        <source>当前版本：V1.0</source>
        <translation>Geçerli sürüm: V1.0</translation>
    </message>
    <message>
        <source>检查键盘固件更新</source>
        <translation>Klavye firmware güncellemesini denetle</translation>
    </message>
    <message>
        <source>检查无线连接器固件更新</source>
        <translation>Alıcı firmware güncellemesini denetle</translation>
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
        <translation>Makrolar</translation>
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
    <name>FrameKeySetting</name>
    <message>
        <source>自定义</source>
        <translation>Özel</translation>
    </message>
    <message>
        <source>高级键</source>
        <translation>Gelişmiş</translation>
    </message>
    <message>
        <source>其他设置</source>
        <translation>Diğer</translation>
    </message>
    <message>
        <source>Fn层设置</source>
        <translation>Fn katmanı</translation>
    </message>
    <message>
        <source>自定义/Fn层设置</source>
        <translation>Özel / Fn katmanı</translation>
    </message>
    <message>
        <source>*首先点击选择上方按键，在弹出的对话框中可选择组合键、宏设置、系统功能、鼠标功能进行改建设置</source>
        <translation>*Önce yukarıdan bir tuşa tıklayın, ardından açılan pencerede kombinasyon, makro, sistem işlevi veya fare işlevi seçerek yeniden atayın</translation>
    </message>
    <message>
        <source>*右键点击按键可清除设置、禁用按键或取消禁用</source>
        <translation>*Ayarını silmek, devre dışı bırakmak veya yeniden etkinleştirmek için tuşa sağ tıklayın</translation>
    </message>
    <message>
        <source>动态键程(DKS)</source>
        <translation>Dinamik tuş vuruşu (DKS)</translation>
    </message>
    <message>
        <source>按住/单击(MT)</source>
        <translation>Mod-Tap (MT)</translation>
    </message>
    <message>
        <source>切换开关(TGL)</source>
        <translation>Aç/kapat (TGL)</translation>
    </message>
    <message>
        <source>Fn层按键设置</source>
        <translation>Fn katmanı tuşları</translation>
    </message>
    <message>
        <source>自定义按键</source>
        <translation>Özel tuşlar</translation>
    </message>
</context>
<context>
    <name>FrameLight</name>
    <message>
        <source>点击按键上色，拖动可给多个按键上色</source>
        <translation>Boyamak için bir tuşa tıklayın ya da birden fazla tuş için sürükleyin</translation>
    </message>
    <message>
        <source>我的作品</source>
        <translation>Çalışmalarım</translation>
    </message>
    <message>
        <source>颜色:</source>
        <translation>Renk:</translation>
    </message>
    <message>
        <source>取色器：</source>
        <translation>Renk seçici:</translation>
    </message>
    <message>
        <source>随机颜色：</source>
        <translation>Rastgele renk:</translation>
    </message>
    <message>
        <source>清除设置</source>
        <translation>Ayarı temizle</translation>
    </message>
    <message>
        <source>写入层(图):</source>
        <translation>Katmana yaz:</translation>
    </message>
    <message>
        <source>图1</source>
        <translation>Resim 1</translation>
    </message>
    <message>
        <source>图2</source>
        <translation>Resim 2</translation>
    </message>
    <message>
        <source>图3</source>
        <translation>Resim 3</translation>
    </message>
    <message>
        <source>图4</source>
        <translation>Resim 4</translation>
    </message>
    <message>
        <source>图5</source>
        <translation>Resim 5</translation>
    </message>
    <message>
        <source>读取层(图):</source>
        <translation>Katmandan oku:</translation>
    </message>
    <message>
        <source>作品名称:</source>
        <translation>Ad:</translation>
    </message>
    <message>
        <source>更新</source>
        <translation>Güncelle</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Kaydet</translation>
    </message>
    <message>
        <source>还没有作品，给按键上色后点击“保存”</source>
        <translation>Henüz çalışma yok. Tuşları boyayıp “Kaydet”e basın</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Bilgi</translation>
    </message>
    <message>
        <source>确认要删除此作品吗？</source>
        <translation>Bu çalışma silinsin mi?</translation>
    </message>
    <message>
        <source>我的作品%1</source>
        <translation>Çalışmam %1</translation>
    </message>
    <message>
        <source>作品已保存</source>
        <translation>Çalışma kaydedildi</translation>
    </message>
    <message>
        <source>把现在的颜色写入键盘的这一层</source>
        <translation>Gösterilen renkleri klavyenin bu katmanına kaydeder</translation>
    </message>
    <message>
        <source>显示键盘这一层里的颜色</source>
        <translation>Klavyenin bu katmanındaki renkleri gösterir</translation>
    </message>
</context>
<context>
    <name>FrameMacro</name>
    <message>
        <source>宏设置</source>
        <translation>Makrolar</translation>
    </message>
    <message>
        <source>抬起</source>
        <translation>Bırakma</translation>
    </message>
    <message>
        <source>按下</source>
        <translation>Basma</translation>
    </message>
    <message>
        <source>延迟</source>
        <translation>Gecikme</translation>
    </message>
    <message>
        <source>开始录制</source>
        <translation>Kaydı başlat</translation>
    </message>
    <message>
        <source>插入</source>
        <translation>Ekle</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Sil</translation>
    </message>
    <message>
        <source>清空</source>
        <translation>Temizle</translation>
    </message>
    <message>
        <source>设置固定延迟(ms):</source>
        <translation>Sabit gecikme (ms):</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Kaydet</translation>
    </message>
    <message>
        <source>新建宏</source>
        <translation>Yeni makro</translation>
    </message>
    <message>
        <source>停止录制</source>
        <translation>Kaydı durdur</translation>
    </message>
    <message>
        <source>点击“开始录制”后按下按键，或点击“插入”添加事件</source>
        <translation>“Kaydı başlat”a tıklayıp tuşlara basın ya da “Ekle” ile bir olay ekleyin</translation>
    </message>
    <message>
        <source>请在左侧选择一个宏</source>
        <translation>Soldan bir makro seçin</translation>
    </message>
    <message>
        <source>占用</source>
        <translation>Kullanılan</translation>
    </message>
    <message>
        <source>字节</source>
        <translation>bayt</translation>
    </message>
    <message>
        <source>录制键盘和鼠标按键，再次点击结束</source>
        <translation>Yeniden basılana kadar tuşları ve fare düğmelerini kaydeder</translation>
    </message>
    <message>
        <source>把所有延迟都设为右侧的值</source>
        <translation>Tüm gecikmeleri sağdaki değere ayarlar</translation>
    </message>
</context>
<context>
    <name>FrameMagic</name>
    <message>
        <source>行程设置</source>
        <translation>Tetikleme noktası</translation>
    </message>
    <message>
        <source>死区设置</source>
        <translation>Ölü bölgeler</translation>
    </message>
    <message>
        <source>轴体设置</source>
        <translation>Switch türü</translation>
    </message>
    <message>
        <source>增稳算法</source>
        <translation>Stabilizasyon</translation>
    </message>
    <message>
        <source>模拟测试</source>
        <translation>Test</translation>
    </message>
    <message>
        <source>已选中按键的数量</source>
        <translation>Seçili tuş sayısı</translation>
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
        <translation>Mekanik switch</translation>
    </message>
    <message>
        <source>凯华轴</source>
        <translation>Kailh switch</translation>
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
        <translation>Alçak profilli manyetik</translation>
    </message>
    <message>
        <source>星芒磁轴</source>
        <translation>Starburst</translation>
    </message>
    <message>
        <source>白泽轴</source>
        <translation>Baize switch</translation>
    </message>
    <message>
        <source>自定义</source>
        <translation>Özel</translation>
    </message>
</context>
<context>
    <name>FrameMain</name>
    <message>
        <source>键程设置(全局)</source>
        <translation>Tetikleme noktası (genel)</translation>
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
    <name>KeyBubble</name>
    <message>
        <source>系统按键</source>
        <translation>Sistem tuşu</translation>
    </message>
    <message>
        <source>动态键程</source>
        <translation>Dinamik tuş vuruşu</translation>
    </message>
    <message>
        <source>按住单击</source>
        <translation>Mod-Tap</translation>
    </message>
    <message>
        <source>切换开关</source>
        <translation>Aç/kapat</translation>
    </message>
    <message>
        <source>宏设置</source>
        <translation>Makrolar</translation>
    </message>
</context>
<context>
    <name>KeyTestPage</name>
    <message>
        <source>行程测试</source>
        <translation>Mesafe testi</translation>
    </message>
    <message>
        <source>按键测试</source>
        <translation>Tuş testi</translation>
    </message>
    <message>
        <source>输入值</source>
        <translation>Girdi</translation>
    </message>
    <message>
        <source>按下任意按键。无线连接下没有实时行程数据。</source>
        <translation>Herhangi bir tuşa basın. Kablosuz bağlantıda canlı hareket verisi yoktur.</translation>
    </message>
</context>
<context>
    <name>LightWorksModel</name>
    <message>
        <source>删除</source>
        <translation>Sil</translation>
    </message>
    <message>
        <source>预览图,作品名称,管理</source>
        <translation>Önizleme,Ad,Yönet</translation>
    </message>
</context>
<context>
    <name>LinearFixing1</name>
    <message>
        <source>行程校准操作指南</source>
        <translation>Kalibrasyon kılavuzu</translation>
    </message>
    <message>
        <source>请依次将每个按键轻按到底并停留至少1秒钟，直到按键变为橙色（表示该按键校准成功），请勿遗漏，可重复按按键。无线下不支持按键校准个数提示。校准过程中请勿拔出数据线。</source>
        <translation>Her tuşa sırayla sonuna kadar hafifçe basın ve tuş turuncuya dönene kadar (tuş kalibre edildi) en az 1 saniye basılı tutun. Hiçbir tuşu atlamayın; tuşlara tekrar basılabilir. Kablosuz bağlantıda kalibre edilen tuş sayısı gösterilmez. Kalibrasyon sırasında kabloyu çıkarmayın.</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>开始校准</source>
        <translation>Kalibrasyonu başlat</translation>
    </message>
</context>
<context>
    <name>LinearFixing2</name>
    <message>
        <source>行程校准</source>
        <translation>Kalibrasyon</translation>
    </message>
    <message>
        <source>请依次将每个按键轻按到底并停留至少1秒钟，直到按键变为橙色（表示该按键校准成功），请勿遗漏，可重复按按键。无线下不支持按键校准个数提示。校准过程中请勿拔出数据线。</source>
        <translation>Her tuşa sırayla sonuna kadar hafifçe basın ve tuş turuncuya dönene kadar (tuş kalibre edildi) en az 1 saniye basılı tutun. Hiçbir tuşu atlamayın; tuşlara tekrar basılabilir. Kablosuz bağlantıda kalibre edilen tuş sayısı gösterilmez. Kalibrasyon sırasında kabloyu çıkarmayın.</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>完成校准</source>
        <translation>Kalibrasyonu bitir</translation>
    </message>
</context>
<context>
    <name>MacroItem</name>
    <message>
        <source>重命名</source>
        <translation>Yeniden adlandır</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Sil</translation>
    </message>
</context>
<context>
    <name>MacroSquare</name>
    <message>
        <source>插入</source>
        <translation>Ekle</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Sil</translation>
    </message>
    <message>
        <source>延迟</source>
        <translation>Gecikme</translation>
    </message>
    <message>
        <source>左键</source>
        <translation>Sol</translation>
    </message>
    <message>
        <source>右键</source>
        <translation>Sağ</translation>
    </message>
    <message>
        <source>中键</source>
        <translation>Orta</translation>
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
        <translation>Aygıtlarım </translation>
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
    <name>MessageBox</name>
    <message>
        <source>是</source>
        <translation>Evet</translation>
    </message>
    <message>
        <source>否</source>
        <translation>Hayır</translation>
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
    <name>ModuleAddMacroSquare</name>
    <message>
        <source>请选择添加宏事件类型</source>
        <translation>Makro olayı türünü seçin</translation>
    </message>
    <message>
        <source>键盘按键</source>
        <translation>Klavye tuşu</translation>
    </message>
    <message>
        <source>请按下按键......</source>
        <translation>Bir tuşa basın…</translation>
    </message>
    <message>
        <source>鼠标按键</source>
        <translation>Fare düğmesi</translation>
    </message>
    <message>
        <source>左键</source>
        <translation>Sol</translation>
    </message>
    <message>
        <source>中键</source>
        <translation>Orta</translation>
    </message>
    <message>
        <source>右键</source>
        <translation>Sağ</translation>
    </message>
    <message>
        <source>鼠标位置</source>
        <translation>Fare konumu</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>Tamam</translation>
    </message>
</context>
<context>
    <name>ModuleDKSAdjust</name>
    <message>
        <source>按下(mm)</source>
        <translation>Basma (mm)</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Kaydet</translation>
    </message>
</context>
<context>
    <name>ModuleDKSItem</name>
    <message>
        <source>按下触发</source>
        <translation>Tetikleme noktası geçildi</translation>
    </message>
    <message>
        <source>按到底部</source>
        <translation>Dibe basıldı</translation>
    </message>
    <message>
        <source>离开底部</source>
        <translation>Dipten kaldırıldı</translation>
    </message>
    <message>
        <source>回到顶部</source>
        <translation>Yukarı döndü</translation>
    </message>
    <message>
        <source>未设置功能</source>
        <translation>İşlev yok</translation>
    </message>
    <message>
        <source>已开启</source>
        <translation>Açık</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Kapalı</translation>
    </message>
</context>
<context>
    <name>ModuleDKSTab</name>
    <message>
        <source>确定</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>按下触发</source>
        <translation>Tetikleme noktası geçildi</translation>
    </message>
    <message>
        <source>按到底部</source>
        <translation>Dibe basıldı</translation>
    </message>
    <message>
        <source>离开底部</source>
        <translation>Dipten kaldırıldı</translation>
    </message>
    <message>
        <source>回到顶部</source>
        <translation>Yukarı döndü</translation>
    </message>
</context>
<context>
    <name>ModuleEfColor</name>
    <message>
        <source>系统默认</source>
        <translation>Varsayılan</translation>
    </message>
    <message>
        <source>自定义</source>
        <translation>Özel</translation>
    </message>
    <message>
        <source>单键</source>
        <translation>Tek tuş</translation>
    </message>
    <message>
        <source>灯带灯效设置</source>
        <translation>Işık şeridi</translation>
    </message>
    <message>
        <source>灯效：</source>
        <translation>Efekt:</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Kapalı</translation>
    </message>
    <message>
        <source>常亮</source>
        <translation>Sabit</translation>
    </message>
    <message>
        <source>呼吸</source>
        <translation>Nefes</translation>
    </message>
    <message>
        <source>川流不息</source>
        <translation>Akış</translation>
    </message>
    <message>
        <source>霓虹</source>
        <translation>Neon</translation>
    </message>
    <message>
        <source>光波</source>
        <translation>Işık dalgası</translation>
    </message>
    <message>
        <source>色彩：</source>
        <translation>Renk:</translation>
    </message>
    <message>
        <source>炫彩</source>
        <translation>RGB</translation>
    </message>
    <message>
        <source>亮度：</source>
        <translation>Parlaklık:</translation>
    </message>
    <message>
        <source>速度：</source>
        <translation>Hız:</translation>
    </message>
    <message>
        <source>颜色%1</source>
        <translation>Renk %1</translation>
    </message>
    <message>
        <source>取色器</source>
        <translation>Renk seçici</translation>
    </message>
</context>
<context>
    <name>ModuleEfLumi</name>
    <message>
        <source>灯光亮度</source>
        <translation>Parlaklık</translation>
    </message>
</context>
<context>
    <name>ModuleEfMode</name>
    <message>
        <source>灯效模式</source>
        <translation>Işık modu</translation>
    </message>
    <message>
        <source>关灯</source>
        <translation>Işığı kapat</translation>
    </message>
    <message>
        <source>灯光播放模式:</source>
        <translation>Oynatma modu:</translation>
    </message>
    <message>
        <source>常亮</source>
        <translation>Sabit</translation>
    </message>
    <message>
        <source>呼吸</source>
        <translation>Nefes</translation>
    </message>
    <message>
        <source>流星</source>
        <translation>Meteor</translation>
    </message>
    <message>
        <source>涟漪</source>
        <translation>Dalgacık</translation>
    </message>
    <message>
        <source>极光</source>
        <translation>Kutup ışığı</translation>
    </message>
    <message>
        <source>雨滴</source>
        <translation>Yağmur damlası</translation>
    </message>
    <message>
        <source>聚合</source>
        <translation>Birleşme</translation>
    </message>
    <message>
        <source>川流不息</source>
        <translation>Akış</translation>
    </message>
    <message>
        <source>霓虹</source>
        <translation>Neon</translation>
    </message>
    <message>
        <source>光波</source>
        <translation>Işık dalgası</translation>
    </message>
    <message>
        <source>繁星点点</source>
        <translation>Yıldızlar</translation>
    </message>
    <message>
        <source>如影随形</source>
        <translation>Gölge</translation>
    </message>
    <message>
        <source>正弦波</source>
        <translation>Sinüs dalgası</translation>
    </message>
    <message>
        <source>彩泉涌动</source>
        <translation>Renk pınarı</translation>
    </message>
    <message>
        <source>百花争艳</source>
        <translation>Çiçek bahçesi</translation>
    </message>
    <message>
        <source>一石二鸟</source>
        <translation>İki kuş</translation>
    </message>
    <message>
        <source>峰回路转</source>
        <translation>Kıvrımlı yol</translation>
    </message>
    <message>
        <source>斜风细雨</source>
        <translation>Çisenti</translation>
    </message>
    <message>
        <source>踏雪无痕</source>
        <translation>İzsiz kar</translation>
    </message>
    <message>
        <source>层出不穷</source>
        <translation>Katmanlar</translation>
    </message>
    <message>
        <source>光影</source>
        <translation>Işık ve gölge</translation>
    </message>
    <message>
        <source>音乐律动</source>
        <translation>Müzik ritmi</translation>
    </message>
    <message>
        <source>自定义</source>
        <translation>Özel</translation>
    </message>
    <message>
        <source>左</source>
        <translation>Sol</translation>
    </message>
    <message>
        <source>右</source>
        <translation>Sağ</translation>
    </message>
    <message>
        <source>上</source>
        <translation>Yukarı</translation>
    </message>
    <message>
        <source>下</source>
        <translation>Aşağı</translation>
    </message>
    <message>
        <source>Z形</source>
        <translation>Z şekli</translation>
    </message>
    <message>
        <source>回形</source>
        <translation>Sarmal</translation>
    </message>
    <message>
        <source>向内</source>
        <translation>İçe</translation>
    </message>
    <message>
        <source>向外</source>
        <translation>Dışa</translation>
    </message>
    <message>
        <source>向右</source>
        <translation>Sağa</translation>
    </message>
    <message>
        <source>向左</source>
        <translation>Sola</translation>
    </message>
    <message>
        <source>图案1</source>
        <translation>Resim 1</translation>
    </message>
    <message>
        <source>图案2</source>
        <translation>Resim 2</translation>
    </message>
    <message>
        <source>图案3</source>
        <translation>Resim 3</translation>
    </message>
    <message>
        <source>图案4</source>
        <translation>Resim 4</translation>
    </message>
    <message>
        <source>图案5</source>
        <translation>Resim 5</translation>
    </message>
    <message>
        <source>顺时针</source>
        <translation>Saat yönü</translation>
    </message>
    <message>
        <source>逆时针</source>
        <translation>Saat yönü tersi</translation>
    </message>
    <message>
        <source>无</source>
        <translation>Yok</translation>
    </message>
</context>
<context>
    <name>ModuleEfSpeed</name>
    <message>
        <source>灯光速度</source>
        <translation>Hız</translation>
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
        <translation>Ses&#xa0;+</translation>
    </message>
    <message>
        <source>音量-</source>
        <translation>Ses&#xa0;−</translation>
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
        <translation>Bu bilgisayar</translation>
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
        <translation>Ekran parlaklığı&#xa0;+</translation>
    </message>
    <message>
        <source>亮度-</source>
        <translation>Ekran parlaklığı&#xa0;−</translation>
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
        <translation>DPI döngüsü</translation>
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
        <translation>Profil değeri</translation>
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
        <translation>Profil döngüsü</translation>
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
        <translation>Arka ışık efekti&#xa0;+</translation>
    </message>
    <message>
        <source>背光灯效-</source>
        <translation>Arka ışık efekti&#xa0;−</translation>
    </message>
    <message>
        <source>背光亮度循环</source>
        <translation>Arka ışık parlaklık döngüsü</translation>
    </message>
    <message>
        <source>背光亮度+</source>
        <translation>Arka ışık parlaklığı&#xa0;+</translation>
    </message>
    <message>
        <source>背光亮度-</source>
        <translation>Arka ışık parlaklığı&#xa0;−</translation>
    </message>
    <message>
        <source>背光速度循环</source>
        <translation>Arka ışık hız döngüsü</translation>
    </message>
    <message>
        <source>背光速度-</source>
        <translation>Arka ışık hızı&#xa0;−</translation>
    </message>
    <message>
        <source>背光速度+</source>
        <translation>Arka ışık hızı&#xa0;+</translation>
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
        <translation>Arka ışık rengi&#xa0;+</translation>
    </message>
    <message>
        <source>背光颜色-</source>
        <translation>Arka ışık rengi&#xa0;−</translation>
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
        <translation>Yan ışık hızı&#xa0;+</translation>
    </message>
    <message>
        <source>侧光速度-</source>
        <translation>Yan ışık hızı&#xa0;−</translation>
    </message>
    <message>
        <source>侧光颜色循环</source>
        <translation>Yan ışık renk döngüsü</translation>
    </message>
    <message>
        <source>侧光颜色+</source>
        <translation>Yan ışık rengi&#xa0;+</translation>
    </message>
    <message>
        <source>侧光颜色-</source>
        <translation>Yan ışık rengi&#xa0;−</translation>
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
        <translation>Makrolar</translation>
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
    <name>ModuleLinear</name>
    <message>
        <source>按下(mm)</source>
        <translation>Tetikleme (mm)</translation>
    </message>
    <message>
        <source>抬起(mm)</source>
        <translation>Bırakma (mm)</translation>
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
        <translation>Yukarıdan bir tuş seçin ve iki işlev atayın: biri dokunma, biri basılı tutma için (kombinasyonlar desteklenir)</translation>
    </message>
    <message>
        <source>单击</source>
        <translation>Dokun</translation>
    </message>
    <message>
        <source>按住</source>
        <translation>Basılı tut</translation>
    </message>
    <message>
        <source>调整触发“按住&quot;键所需的时间</source>
        <translation>“Basılı tut” için gereken süreyi ayarla</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>按住超过这段时间才执行“按住”的功能</source>
        <translation>Tuş bundan uzun tutulursa “Basılı tut” işlevi çalışır</translation>
    </message>
</context>
<context>
    <name>ModuleMacroManager</name>
    <message>
        <source>新建宏</source>
        <translation>Yeni makro </translation>
    </message>
</context>
<context>
    <name>ModuleRtSet</name>
    <message>
        <source>RT行程设置(全局)</source>
        <translation>RT hassasiyeti (genel)</translation>
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
    <name>ModuleSnapTab</name>
    <message>
        <source>绑定2个选定按键(分别从上面选择)，当两个按键被同时按下时，以最后按下的按键为准</source>
        <translation>Seçilen 2 tuşu bağlar (her birini yukarıdan seçin): ikisi birden basılıyken son basılan geçerlidir (SOCD)</translation>
    </message>
    <message>
        <source>选择A键</source>
        <translation>A tuşunu seç</translation>
    </message>
    <message>
        <source>选择B键</source>
        <translation>B tuşunu seç</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>Tamam</translation>
    </message>
</context>
<context>
    <name>ModuleTGLTab</name>
    <message>
        <source>选定上方键位，可通过选择连点及长按两种触发模式，设置两个功能</source>
        <translation>Yukarıdan bir tuş seçin ve işlevini iki moddan biriyle ayarlayın: tekrarla veya basılı tut</translation>
    </message>
    <message>
        <source>连点</source>
        <translation>Tekrarla</translation>
    </message>
    <message>
        <source>长按</source>
        <translation>Basılı tut</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>未设置功能</source>
        <translation>İşlev yok</translation>
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
        <translation>Orbe 7090 kılavuzu: makrolar</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Select All</source>
        <translation>&amp;Tümünü seç</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>&amp;Artır</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>A&amp;zalt</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Geri al</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Yinele</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Kes</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>K&amp;opyala</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Yapıştır</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Sil</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Tümünü seç</translation>
    </message>
</context>
<context>
    <name>ShellNotices</name>
    <message>
        <source>重试</source>
        <translation>Yeniden dene</translation>
    </message>
</context>
<context>
    <name>StabilityPage</name>
    <message>
        <source>RT Stab(RT 增稳算法)</source>
        <translation>RT Stab (RT stabilizasyonu)</translation>
    </message>
    <message>
        <source>RT Stab打开后，算法会介入增强轴体底部的稳定性。介入百分比越大，稳定性越强，延迟也会有所增加。</source>
        <translation>RT Stab açıkken algoritma switch’in alt bölümünü dengeler. Yüzde arttıkça kararlılık artar, gecikme de biraz yükselir.</translation>
    </message>
    <message>
        <source>0%(关闭)</source>
        <translation>0% (kapalı)</translation>
    </message>
    <message>
        <source>防误触模式</source>
        <translation>Yanlış basma koruması</translation>
    </message>
    <message>
        <source>(已关闭)</source>
        <translation>(Kapalı)</translation>
    </message>
    <message>
        <source>防止极限性能下桌面抖动误触发或轴体公差可能造成还有0.1mm的行程公差。开启后优化底部按键算法补足行程差值提高键盘稳定性。</source>
        <translation>Uç ayarlarda masa sarsıntısının tuşları tetiklemesini önler ve switch’lerdeki 0,1 mm toleransı giderir. Açıkken alt bölümdeki algoritma farkı kapatır ve klavyeyi daha kararlı yapar.</translation>
    </message>
    <message>
        <source>已开启</source>
        <translation>Açık</translation>
    </message>
    <message>
        <source>已关闭</source>
        <translation>Kapalı</translation>
    </message>
</context>
<context>
    <name>SwitchTypePage</name>
    <message>
        <source>轴体设置</source>
        <translation>Switch türü</translation>
    </message>
    <message>
        <source>更换键盘轴体后，选择对应轴体的按键，点击下方对应的轴体选项进行设置来区分不同轴体</source>
        <translation>Switch değiştirdikten sonra aşağıdan ilgili switch’i seçin ve takılı olduğu tuşlara tıklayın</translation>
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
        <translation>Anahtar</translation>
    </message>
</context>
<context>
    <name>TravelPage</name>
    <message>
        <source>单独设置按下抬起触发行程：</source>
        <translation>Tetikleme ve bırakmayı ayrı ayarla:</translation>
    </message>
    <message>
        <source>全程连续快速触发（RT）</source>
        <translation>Sürekli Rapid Trigger (RT)</translation>
    </message>
    <message>
        <source>启用时，快速触发在您完全松开按键时才会终止。
禁用时，松开按键到轴体触发行程后终止快速触发</source>
        <translation>Açık: Rapid Trigger yalnızca tuş tamamen bırakıldığında sona erer.
Kapalı: Rapid Trigger, tuş tetikleme noktasının üstüne çıkınca sona erer</translation>
    </message>
    <message>
        <source>单独设置按键再次按下触发和松开重置行程</source>
        <translation>RT basma ve bırakma mesafesini ayrı ayarla</translation>
    </message>
    <message>
        <source>再次按下按键触发所需的行程(mm)</source>
        <translation>Yeniden tetikleme mesafesi (mm)</translation>
    </message>
    <message>
        <source>松开按键重置所需的行程(mm)</source>
        <translation>Bırakınca sıfırlama mesafesi (mm)</translation>
    </message>
    <message>
        <source>设置</source>
        <translation>Uygula</translation>
    </message>
    <message>
        <source>抬起后再按下这段距离即再次触发，越小越灵敏</source>
        <translation>Tuş nerede olursa olsun bu kadar basmak yeniden tetikler; küçüldükçe hassaslaşır</translation>
    </message>
    <message>
        <source>按下后抬起这段距离即释放，越小越灵敏</source>
        <translation>Tuş nerede olursa olsun bu kadar kalkmak bırakır; küçüldükçe hassaslaşır</translation>
    </message>
    <message>
        <source>按键按到多深时触发</source>
        <translation>Tuşun ne kadar basılınca tetikleneceği</translation>
    </message>
    <message>
        <source>按键抬到多高时释放</source>
        <translation>Tuşun ne kadar kalkınca bırakılmış sayılacağı</translation>
    </message>
</context>
<context>
    <name>TravelRuler</name>
    <message>
        <source>行程测试</source>
        <translation>Mesafe testi</translation>
    </message>
</context>
<context>
    <name>WorkMeter</name>
    <message>
        <source>正在读取键盘</source>
        <translation>Klavye okunuyor</translation>
    </message>
    <message>
        <source>正在写入键盘</source>
        <translation>Klavyeye yazılıyor</translation>
    </message>
</context>
</TS>
