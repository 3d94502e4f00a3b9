<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="vi_VN" sourcelanguage="zh_CN">
<context>
    <name>ColorSlider</name>
    <message>
        <source>色相</source>
        <translation>Sắc độ</translation>
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
        <translation>Lệnh,Độ dài dữ liệu,Byte0
Mã lệnh (Hex),Byte1
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
        <translation>Thẻ</translation>
    </message>
</context>
<context>
    <name>CustumSlider</name>
    <message>
        <source>滑块</source>
        <translation>Thanh trượt</translation>
    </message>
</context>
<context>
    <name>DeadZonePage</name>
    <message>
        <source>死区设置</source>
        <translation>Vùng chết</translation>
    </message>
    <message>
        <source>按键死区设定</source>
        <translation>Đặt vùng chết của phím</translation>
    </message>
    <message>
        <source>触底到抬起前的距离俗称“死区”。死区可减少磁轴因环境干扰带来的断触问题，磁轴的底部可自定义，您可根据个人需求自定义死区，设定之后，此段行程不会触发。</source>
        <translation>Khoảng cách từ khi chạm đáy đến trước khi nhả lên được gọi là “vùng chết”. Vùng chết giúp giảm mất tín hiệu của switch từ do nhiễu. Bạn có thể tùy chỉnh; trong khoảng này phím sẽ không kích hoạt.</translation>
    </message>
    <message>
        <source>设置</source>
        <translation>Áp dụng</translation>
    </message>
    <message>
        <source>顶部死区</source>
        <translation>Vùng chết trên</translation>
    </message>
    <message>
        <source>底部死区</source>
        <translation>Vùng chết dưới</translation>
    </message>
    <message>
        <source>按键顶部不触发的距离，可防误触</source>
        <translation>Khoảng trên cùng không phản hồi, tránh nhấn nhầm</translation>
    </message>
    <message>
        <source>按键底部不响应的距离，可防抖动</source>
        <translation>Khoảng dưới cùng không phản hồi, tránh rung khi giữ phím</translation>
    </message>
</context>
<context>
    <name>DemoBoard</name>
    <message>
        <source>没有插入键盘</source>
        <translation>Chưa cắm bàn phím</translation>
    </message>
    <message>
        <source>虚拟键盘的灯光</source>
        <translation>Đèn của bàn phím ảo</translation>
    </message>
    <message>
        <source>虚拟键盘</source>
        <translation>Bàn phím ảo</translation>
    </message>
    <message>
        <source>单击按键即可按下它，部分灯效会作出反应。</source>
        <translation>Nhấp vào phím để nhấn; một số hiệu ứng sẽ phản ứng.</translation>
    </message>
    <message>
        <source>灯光已关闭</source>
        <translation>Đèn đã tắt</translation>
    </message>
    <message>
        <source>%1 · 亮度 %2% · 速度 %3%</source>
        <translation>%1 · độ sáng %2% · tốc độ %3%</translation>
    </message>
</context>
<context>
    <name>DemoDesk</name>
    <message>
        <source>虚拟设备</source>
        <translation>Thiết bị ảo</translation>
    </message>
    <message>
        <source>插入或拔出虚拟设备：</source>
        <translation>Cắm hoặc rút thiết bị ảo:</translation>
    </message>
    <message>
        <source>依次按下所有按键</source>
        <translation>Lần lượt nhấn tất cả các phím</translation>
    </message>
    <message>
        <source>显示键盘的灯光</source>
        <translation>Hiện đèn của bàn phím</translation>
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
        <translation>Tắt đèn nền 2.4G</translation>
    </message>
    <message>
        <source>蓝牙关闭背光</source>
        <translation>Tắt đèn nền Bluetooth</translation>
    </message>
    <message>
        <source>2.4G深度睡眠时间</source>
        <translation>Thời gian ngủ sâu 2.4G</translation>
    </message>
    <message>
        <source>分钟</source>
        <translation>phút</translation>
    </message>
    <message>
        <source>蓝牙深度睡眠时间</source>
        <translation>Thời gian ngủ sâu Bluetooth</translation>
    </message>
    <message>
        <source>按键防抖等级设置</source>
        <translation>Mức chống dội phím</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 phút</translation>
    </message>
    <message>
        <source>键盘每秒向电脑报告的次数，越高延迟越低</source>
        <translation>Số lần bàn phím báo về máy tính mỗi giây; càng cao độ trễ càng thấp</translation>
    </message>
    <message>
        <source>不按键多久后关闭背光</source>
        <translation>Sau bao lâu không nhấn phím thì tắt đèn nền</translation>
    </message>
    <message>
        <source>不按键多久后进入深度睡眠，可省电</source>
        <translation>Sau bao lâu không nhấn phím thì bàn phím ngủ sâu để tiết kiệm pin</translation>
    </message>
    <message>
        <source>级别越高越能避免连击，但会增加延迟</source>
        <translation>Mức càng cao càng tránh được nhấn đúp nhưng tăng độ trễ</translation>
    </message>
</context>
<context>
    <name>DeviceTrouble</name>
    <message>
        <source>系统不允许访问此键盘。请将 70-orbehub.rules 复制到 /etc/udev/rules.d，然后重新插拔键盘。</source>
        <translation>Hệ thống không cho phép truy cập bàn phím này. Hãy sao chép 70-orbehub.rules vào /etc/udev/rules.d rồi cắm lại bàn phím.</translation>
    </message>
    <message>
        <source>系统不允许访问此键盘。请检查您的用户权限，然后重新插拔键盘。</source>
        <translation>Hệ thống không cho phép truy cập bàn phím này. Hãy kiểm tra quyền người dùng rồi cắm lại bàn phím.</translation>
    </message>
    <message>
        <source>已断开</source>
        <translation>Đã ngắt kết nối</translation>
    </message>
    <message>
        <source>键盘已断开，重新连接后即可使用。</source>
        <translation>Bàn phím đã ngắt kết nối. Hãy kết nối lại để sử dụng.</translation>
    </message>
    <message>
        <source>没有响应</source>
        <translation>Không phản hồi</translation>
    </message>
    <message>
        <source>键盘没有响应，可能处于休眠状态，请按任意键唤醒。</source>
        <translation>Bàn phím không phản hồi. Có thể nó đang ngủ: nhấn phím bất kỳ để đánh thức.</translation>
    </message>
    <message>
        <source>没有访问权限</source>
        <translation>Không có quyền truy cập</translation>
    </message>
    <message>
        <source>无法打开</source>
        <translation>Không mở được</translation>
    </message>
    <message>
        <source>无法打开键盘，可能正被其他程序占用。请关闭该程序后重新插拔键盘。</source>
        <translation>Không mở được bàn phím. Có thể một chương trình khác đang dùng nó: hãy đóng chương trình đó rồi cắm lại bàn phím.</translation>
    </message>
    <message>
        <source>键盘</source>
        <translation>Bàn phím</translation>
    </message>
</context>
<context>
    <name>DialogColorPicker</name>
    <message>
        <source>取色器</source>
        <translation>Bộ chọn màu</translation>
    </message>
    <message>
        <source>按住并拖到屏幕上的任意位置取色</source>
        <translation>Giữ và kéo đến bất kỳ đâu trên màn hình để lấy màu</translation>
    </message>
    <message>
        <source>完成</source>
        <translation>Xong</translation>
    </message>
</context>
<context>
    <name>DialogDeviceConnect</name>
    <message>
        <source>Orbe Studio 设备调试</source>
        <translation>Gỡ lỗi thiết bị Orbe Studio</translation>
    </message>
    <message>
        <source>命令目录</source>
        <translation>Danh mục lệnh</translation>
    </message>
</context>
<context>
    <name>DialogFNPicker</name>
    <message>
        <source>组合键</source>
        <translation>Tổ hợp phím</translation>
    </message>
    <message>
        <source>基本字符</source>
        <translation>Phím cơ bản</translation>
    </message>
    <message>
        <source>拓展字符(按键)</source>
        <translation>Phím mở rộng</translation>
    </message>
    <message>
        <source>宏设置</source>
        <translation>Macro</translation>
    </message>
    <message>
        <source>播放方式:</source>
        <translation>Chế độ phát:</translation>
    </message>
    <message>
        <source>循环次数</source>
        <translation>Số lần lặp</translation>
    </message>
    <message>
        <source>自动</source>
        <translation>Tự động</translation>
    </message>
    <message>
        <source>按下</source>
        <translation>Nhấn</translation>
    </message>
    <message>
        <source>系统功能</source>
        <translation>Chức năng hệ thống</translation>
    </message>
    <message>
        <source>鼠标功能</source>
        <translation>Chức năng chuột</translation>
    </message>
    <message>
        <source>设置功能为:</source>
        <translation>Đặt chức năng:</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Hủy</translation>
    </message>
    <message>
        <source>左键</source>
        <translation>Trái</translation>
    </message>
    <message>
        <source>右键</source>
        <translation>Phải</translation>
    </message>
    <message>
        <source>中键</source>
        <translation>Giữa</translation>
    </message>
    <message>
        <source>前移</source>
        <translation>Tiến</translation>
    </message>
    <message>
        <source>后移</source>
        <translation>Lùi</translation>
    </message>
    <message>
        <source>左滚</source>
        <translation>Cuộn trái</translation>
    </message>
    <message>
        <source>右滚</source>
        <translation>Cuộn phải</translation>
    </message>
    <message>
        <source>上滚</source>
        <translation>Cuộn lên</translation>
    </message>
    <message>
        <source>下滚</source>
        <translation>Cuộn xuống</translation>
    </message>
    <message>
        <source>向上滚屏</source>
        <translation>Cuộn trang lên</translation>
    </message>
    <message>
        <source>向下滚屏</source>
        <translation>Cuộn trang xuống</translation>
    </message>
    <message>
        <source>自定义按键</source>
        <translation>Phím tùy chỉnh</translation>
    </message>
    <message>
        <source>宏</source>
        <translation>Macro </translation>
    </message>
    <message>
        <source>未录制的宏</source>
        <translation>Macro chưa ghi</translation>
    </message>
</context>
<context>
    <name>DialogVKPicker</name>
    <message>
        <source>基本字符</source>
        <translation>Phím cơ bản</translation>
    </message>
    <message>
        <source>拓展字符</source>
        <translation>Phím mở rộng</translation>
    </message>
    <message>
        <source>组合键：</source>
        <translation>Tổ hợp phím:</translation>
    </message>
    <message>
        <source>确认</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Hủy</translation>
    </message>
    <message>
        <source>组合键</source>
        <translation>Tổ hợp phím</translation>
    </message>
</context>
<context>
    <name>FrameAbout</name>
    <message>
        <source>关于</source>
        <translation>Giới thiệu</translation>
    </message>
    <message>
        <source>设备名称：Orbe 7090</source>
        <translation>Tên thiết bị: Orbe 7090</translation>
    </message>
    <message>
        <source>键盘固件版本：V1.0</source>
        <translation>Phiên bản firmware bàn phím: V1.0</translation>
    </message>
    <message>
        <source>无线连接器固件版本：V1.0</source>
        <translation>Phiên bản firmware đầu thu: V1.0</translation>
    </message>
    <message>
        <source>当前版本：V1.0</source>
        <translation>Phiên bản hiện tại: V1.0</translation>
    </message>
    <message>
        <source>检查键盘固件更新</source>
        <translation>Kiểm tra cập nhật firmware bàn phím</translation>
    </message>
    <message>
        <source>检查无线连接器固件更新</source>
        <translation>Kiểm tra cập nhật firmware đầu thu</translation>
    </message>
    <message>
        <source>操作教学</source>
        <translation>Hướng dẫn</translation>
    </message>
    <message>
        <source>关于Orbe</source>
        <translation>Về Orbe</translation>
    </message>
</context>
<context>
    <name>FrameDeviceHolder</name>
    <message>
        <source>首页</source>
        <translation>Trang chủ</translation>
    </message>
    <message>
        <source>键盘设置</source>
        <translation>Cài đặt phím</translation>
    </message>
    <message>
        <source>磁轴设置</source>
        <translation>Cài đặt switch từ</translation>
    </message>
    <message>
        <source>宏设置</source>
        <translation>Macro</translation>
    </message>
    <message>
        <source>灯效设置</source>
        <translation>Cài đặt hiệu ứng đèn</translation>
    </message>
    <message>
        <source>关于</source>
        <translation>Giới thiệu</translation>
    </message>
    <message>
        <source>用户</source>
        <translation>Người dùng</translation>
    </message>
    <message>
        <source>返回</source>
        <translation>Quay lại</translation>
    </message>
    <message>
        <source>板载 1</source>
        <translation>Profile 1</translation>
    </message>
    <message>
        <source>板载 2</source>
        <translation>Profile 2</translation>
    </message>
    <message>
        <source>板载 3</source>
        <translation>Profile 3</translation>
    </message>
    <message>
        <source>板载 4</source>
        <translation>Profile 4</translation>
    </message>
    <message>
        <source>对码</source>
        <translation>Ghép nối</translation>
    </message>
    <message>
        <source>恢复默认</source>
        <translation>Mặc định</translation>
    </message>
    <message>
        <source>行程校准</source>
        <translation>Hiệu chuẩn</translation>
    </message>
    <message>
        <source>灯光设置</source>
        <translation>Cài đặt đèn</translation>
    </message>
</context>
<context>
    <name>FrameDeviceShow</name>
    <message>
        <source>剩余电量</source>
        <translation>Pin còn lại</translation>
    </message>
</context>
<context>
    <name>FrameKeySetting</name>
    <message>
        <source>自定义</source>
        <translation>Tùy chỉnh</translation>
    </message>
    <message>
        <source>高级键</source>
        <translation>Nâng cao</translation>
    </message>
    <message>
        <source>其他设置</source>
        <translation>Khác</translation>
    </message>
    <message>
        <source>Fn层设置</source>
        <translation>Lớp Fn</translation>
    </message>
    <message>
        <source>自定义/Fn层设置</source>
        <translation>Tùy chỉnh / Lớp Fn</translation>
    </message>
    <message>
        <source>*首先点击选择上方按键，在弹出的对话框中可选择组合键、宏设置、系统功能、鼠标功能进行改建设置</source>
        <translation>*Nhấp chọn một phím ở trên trước, sau đó chọn tổ hợp phím, macro, chức năng hệ thống hoặc chức năng chuột trong hộp thoại để gán lại</translation>
    </message>
    <message>
        <source>*右键点击按键可清除设置、禁用按键或取消禁用</source>
        <translation>*Nhấp chuột phải vào phím để xóa cài đặt, tắt phím hoặc bật lại</translation>
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
        <translation>Bật/tắt (TGL)</translation>
    </message>
    <message>
        <source>Fn层按键设置</source>
        <translation>Cài đặt phím lớp Fn</translation>
    </message>
    <message>
        <source>自定义按键</source>
        <translation>Phím tùy chỉnh</translation>
    </message>
</context>
<context>
    <name>FrameLight</name>
    <message>
        <source>点击按键上色，拖动可给多个按键上色</source>
        <translation>Nhấp vào phím để tô màu, kéo để tô nhiều phím cùng lúc</translation>
    </message>
    <message>
        <source>我的作品</source>
        <translation>Tác phẩm của tôi</translation>
    </message>
    <message>
        <source>颜色:</source>
        <translation>Màu:</translation>
    </message>
    <message>
        <source>取色器：</source>
        <translation>Chọn màu:</translation>
    </message>
    <message>
        <source>随机颜色：</source>
        <translation>Màu ngẫu nhiên:</translation>
    </message>
    <message>
        <source>清除设置</source>
        <translation>Xóa cài đặt</translation>
    </message>
    <message>
        <source>写入层(图):</source>
        <translation>Ghi vào lớp:</translation>
    </message>
    <message>
        <source>图1</source>
        <translation>Hình 1</translation>
    </message>
    <message>
        <source>图2</source>
        <translation>Hình 2</translation>
    </message>
    <message>
        <source>图3</source>
        <translation>Hình 3</translation>
    </message>
    <message>
        <source>图4</source>
        <translation>Hình 4</translation>
    </message>
    <message>
        <source>图5</source>
        <translation>Hình 5</translation>
    </message>
    <message>
        <source>读取层(图):</source>
        <translation>Đọc từ lớp:</translation>
    </message>
    <message>
        <source>作品名称:</source>
        <translation>Tên:</translation>
    </message>
    <message>
        <source>更新</source>
        <translation>Cập nhật</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Lưu</translation>
    </message>
    <message>
        <source>还没有作品，给按键上色后点击“保存”</source>
        <translation>Chưa có tác phẩm nào. Tô màu các phím rồi nhấn Lưu</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Thông báo</translation>
    </message>
    <message>
        <source>确认要删除此作品吗？</source>
        <translation>Bạn có chắc muốn xóa tác phẩm này?</translation>
    </message>
    <message>
        <source>我的作品%1</source>
        <translation>Tác phẩm %1</translation>
    </message>
    <message>
        <source>作品已保存</source>
        <translation>Đã lưu tác phẩm</translation>
    </message>
    <message>
        <source>把现在的颜色写入键盘的这一层</source>
        <translation>Lưu màu đang hiện vào lớp này của bàn phím</translation>
    </message>
    <message>
        <source>显示键盘这一层里的颜色</source>
        <translation>Hiện màu đang lưu trong lớp này của bàn phím</translation>
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
        <translation>Nhả</translation>
    </message>
    <message>
        <source>按下</source>
        <translation>Nhấn</translation>
    </message>
    <message>
        <source>延迟</source>
        <translation>Trễ</translation>
    </message>
    <message>
        <source>开始录制</source>
        <translation>Bắt đầu ghi</translation>
    </message>
    <message>
        <source>插入</source>
        <translation>Chèn</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Xóa</translation>
    </message>
    <message>
        <source>清空</source>
        <translation>Xóa hết</translation>
    </message>
    <message>
        <source>设置固定延迟(ms):</source>
        <translation>Đặt độ trễ cố định (ms):</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Lưu</translation>
    </message>
    <message>
        <source>新建宏</source>
        <translation>Macro mới</translation>
    </message>
    <message>
        <source>停止录制</source>
        <translation>Dừng ghi</translation>
    </message>
    <message>
        <source>点击“开始录制”后按下按键，或点击“插入”添加事件</source>
        <translation>Nhấp “Bắt đầu ghi” rồi nhấn phím, hoặc nhấp “Chèn” để thêm sự kiện</translation>
    </message>
    <message>
        <source>请在左侧选择一个宏</source>
        <translation>Chọn một macro ở bên trái</translation>
    </message>
    <message>
        <source>占用</source>
        <translation>Đã dùng</translation>
    </message>
    <message>
        <source>字节</source>
        <translation>byte</translation>
    </message>
    <message>
        <source>录制键盘和鼠标按键，再次点击结束</source>
        <translation>Ghi phím và nút chuột cho đến khi nhấn lại</translation>
    </message>
    <message>
        <source>把所有延迟都设为右侧的值</source>
        <translation>Đặt mọi độ trễ thành giá trị bên phải</translation>
    </message>
</context>
<context>
    <name>FrameMagic</name>
    <message>
        <source>行程设置</source>
        <translation>Điểm kích hoạt</translation>
    </message>
    <message>
        <source>死区设置</source>
        <translation>Vùng chết</translation>
    </message>
    <message>
        <source>轴体设置</source>
        <translation>Loại switch</translation>
    </message>
    <message>
        <source>增稳算法</source>
        <translation>Ổn định</translation>
    </message>
    <message>
        <source>模拟测试</source>
        <translation>Kiểm tra</translation>
    </message>
    <message>
        <source>已选中按键的数量</source>
        <translation>Số phím đã chọn</translation>
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
        <translation>Switch cơ</translation>
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
        <translation>Switch từ low-profile</translation>
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
        <translation>Tùy chỉnh</translation>
    </message>
</context>
<context>
    <name>FrameMain</name>
    <message>
        <source>键程设置(全局)</source>
        <translation>Điểm kích hoạt (toàn bộ)</translation>
    </message>
</context>
<context>
    <name>FrameSystemInfo</name>
    <message>
        <source>系统设置</source>
        <translation>Cài đặt hệ thống</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Đóng</translation>
    </message>
    <message>
        <source>开机时自动开启本程序</source>
        <translation>Tự khởi động chương trình cùng máy tính</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Hủy</translation>
    </message>
</context>
<context>
    <name>HubTray</name>
    <message>
        <source>显示窗口</source>
        <translation>Hiện cửa sổ</translation>
    </message>
    <message>
        <source>隐藏窗口</source>
        <translation>Ẩn cửa sổ</translation>
    </message>
    <message>
        <source>退出程序</source>
        <translation>Thoát</translation>
    </message>
</context>
<context>
    <name>KeyBubble</name>
    <message>
        <source>系统按键</source>
        <translation>Phím hệ thống</translation>
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
        <translation>Bật/tắt</translation>
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
        <translation>Kiểm tra hành trình</translation>
    </message>
    <message>
        <source>按键测试</source>
        <translation>Kiểm tra phím</translation>
    </message>
    <message>
        <source>输入值</source>
        <translation>Giá trị nhập</translation>
    </message>
    <message>
        <source>按下任意按键。无线连接下没有实时行程数据。</source>
        <translation>Nhấn phím bất kỳ. Kết nối không dây không có dữ liệu hành trình trực tiếp.</translation>
    </message>
</context>
<context>
    <name>LightWorksModel</name>
    <message>
        <source>删除</source>
        <translation>Xóa</translation>
    </message>
    <message>
        <source>预览图,作品名称,管理</source>
        <translation>Xem trước,Tên,Quản lý</translation>
    </message>
</context>
<context>
    <name>LinearFixing1</name>
    <message>
        <source>行程校准操作指南</source>
        <translation>Hướng dẫn hiệu chuẩn hành trình</translation>
    </message>
    <message>
        <source>请依次将每个按键轻按到底并停留至少1秒钟，直到按键变为橙色（表示该按键校准成功），请勿遗漏，可重复按按键。无线下不支持按键校准个数提示。校准过程中请勿拔出数据线。</source>
        <translation>Lần lượt nhấn nhẹ từng phím xuống hết hành trình và giữ ít nhất 1 giây cho đến khi phím chuyển sang màu cam (phím đã hiệu chuẩn xong). Đừng bỏ sót phím nào; có thể nhấn lại. Khi dùng không dây sẽ không hiển thị số phím đã hiệu chuẩn. Không rút cáp trong khi hiệu chuẩn.</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Hủy</translation>
    </message>
    <message>
        <source>开始校准</source>
        <translation>Bắt đầu hiệu chuẩn</translation>
    </message>
</context>
<context>
    <name>LinearFixing2</name>
    <message>
        <source>行程校准</source>
        <translation>Hiệu chuẩn</translation>
    </message>
    <message>
        <source>请依次将每个按键轻按到底并停留至少1秒钟，直到按键变为橙色（表示该按键校准成功），请勿遗漏，可重复按按键。无线下不支持按键校准个数提示。校准过程中请勿拔出数据线。</source>
        <translation>Lần lượt nhấn nhẹ từng phím xuống hết hành trình và giữ ít nhất 1 giây cho đến khi phím chuyển sang màu cam (phím đã hiệu chuẩn xong). Đừng bỏ sót phím nào; có thể nhấn lại. Khi dùng không dây sẽ không hiển thị số phím đã hiệu chuẩn. Không rút cáp trong khi hiệu chuẩn.</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Hủy</translation>
    </message>
    <message>
        <source>完成校准</source>
        <translation>Hoàn tất hiệu chuẩn</translation>
    </message>
</context>
<context>
    <name>MacroItem</name>
    <message>
        <source>重命名</source>
        <translation>Đổi tên</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Xóa</translation>
    </message>
</context>
<context>
    <name>MacroSquare</name>
    <message>
        <source>插入</source>
        <translation>Chèn</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Xóa</translation>
    </message>
    <message>
        <source>延迟</source>
        <translation>Trễ</translation>
    </message>
    <message>
        <source>左键</source>
        <translation>Trái</translation>
    </message>
    <message>
        <source>右键</source>
        <translation>Phải</translation>
    </message>
    <message>
        <source>中键</source>
        <translation>Giữa</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>语言</source>
        <translation>Ngôn ngữ</translation>
    </message>
    <message>
        <source>系统设置</source>
        <translation>Cài đặt hệ thống</translation>
    </message>
    <message>
        <source>最小化</source>
        <translation>Thu nhỏ</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Tắt</translation>
    </message>
    <message>
        <source>搜索设备</source>
        <translation>Tìm thiết bị</translation>
    </message>
    <message>
        <source>我的设备</source>
        <translation>Thiết bị của tôi </translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Thông báo</translation>
    </message>
    <message>
        <source>确定要退出 ORBE 驱动程序？</source>
        <translation>Bạn có chắc muốn thoát trình điều khiển ORBE?</translation>
    </message>
    <message>
        <source>正在搜索设备</source>
        <translation>Đang tìm thiết bị</translation>
    </message>
    <message>
        <source>向左滚动</source>
        <translation>Cuộn sang trái</translation>
    </message>
    <message>
        <source>向右滚动</source>
        <translation>Cuộn sang phải</translation>
    </message>
    <message>
        <source>返回</source>
        <translation>Quay lại</translation>
    </message>
</context>
<context>
    <name>MessageBox</name>
    <message>
        <source>是</source>
        <translation>Có</translation>
    </message>
    <message>
        <source>否</source>
        <translation>Không</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Hủy</translation>
    </message>
</context>
<context>
    <name>ModuleAddMacroSquare</name>
    <message>
        <source>请选择添加宏事件类型</source>
        <translation>Chọn loại sự kiện macro cần thêm</translation>
    </message>
    <message>
        <source>键盘按键</source>
        <translation>Phím bàn phím</translation>
    </message>
    <message>
        <source>请按下按键......</source>
        <translation>Nhấn một phím…</translation>
    </message>
    <message>
        <source>鼠标按键</source>
        <translation>Nút chuột</translation>
    </message>
    <message>
        <source>左键</source>
        <translation>Trái</translation>
    </message>
    <message>
        <source>中键</source>
        <translation>Giữa</translation>
    </message>
    <message>
        <source>右键</source>
        <translation>Phải</translation>
    </message>
    <message>
        <source>鼠标位置</source>
        <translation>Vị trí chuột</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Hủy</translation>
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
        <translation>Nhấn (mm)</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Hủy</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Lưu</translation>
    </message>
</context>
<context>
    <name>ModuleDKSItem</name>
    <message>
        <source>按下触发</source>
        <translation>Nhấn qua điểm kích hoạt</translation>
    </message>
    <message>
        <source>按到底部</source>
        <translation>Nhấn chạm đáy</translation>
    </message>
    <message>
        <source>离开底部</source>
        <translation>Nhấc khỏi đáy</translation>
    </message>
    <message>
        <source>回到顶部</source>
        <translation>Trở về đỉnh</translation>
    </message>
    <message>
        <source>未设置功能</source>
        <translation>Chưa đặt</translation>
    </message>
    <message>
        <source>已开启</source>
        <translation>Đã bật</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Tắt</translation>
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
        <translation>Nhấn qua điểm kích hoạt</translation>
    </message>
    <message>
        <source>按到底部</source>
        <translation>Nhấn chạm đáy</translation>
    </message>
    <message>
        <source>离开底部</source>
        <translation>Nhấc khỏi đáy</translation>
    </message>
    <message>
        <source>回到顶部</source>
        <translation>Trở về đỉnh</translation>
    </message>
</context>
<context>
    <name>ModuleEfColor</name>
    <message>
        <source>系统默认</source>
        <translation>Mặc định</translation>
    </message>
    <message>
        <source>自定义</source>
        <translation>Tùy chỉnh</translation>
    </message>
    <message>
        <source>单键</source>
        <translation>Phím đơn</translation>
    </message>
    <message>
        <source>灯带灯效设置</source>
        <translation>Dải đèn</translation>
    </message>
    <message>
        <source>灯效：</source>
        <translation>Hiệu ứng:</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Tắt</translation>
    </message>
    <message>
        <source>常亮</source>
        <translation>Sáng tĩnh</translation>
    </message>
    <message>
        <source>呼吸</source>
        <translation>Nhịp thở</translation>
    </message>
    <message>
        <source>川流不息</source>
        <translation>Dòng chảy</translation>
    </message>
    <message>
        <source>霓虹</source>
        <translation>Neon</translation>
    </message>
    <message>
        <source>光波</source>
        <translation>Sóng ánh sáng</translation>
    </message>
    <message>
        <source>色彩：</source>
        <translation>Màu:</translation>
    </message>
    <message>
        <source>炫彩</source>
        <translation>RGB</translation>
    </message>
    <message>
        <source>亮度：</source>
        <translation>Độ sáng:</translation>
    </message>
    <message>
        <source>速度：</source>
        <translation>Tốc độ:</translation>
    </message>
    <message>
        <source>颜色%1</source>
        <translation>Màu %1</translation>
    </message>
    <message>
        <source>取色器</source>
        <translation>Bộ chọn màu</translation>
    </message>
</context>
<context>
    <name>ModuleEfLumi</name>
    <message>
        <source>灯光亮度</source>
        <translation>Độ sáng</translation>
    </message>
</context>
<context>
    <name>ModuleEfMode</name>
    <message>
        <source>灯效模式</source>
        <translation>Chế độ đèn</translation>
    </message>
    <message>
        <source>关灯</source>
        <translation>Tắt đèn</translation>
    </message>
    <message>
        <source>灯光播放模式:</source>
        <translation>Chế độ phát:</translation>
    </message>
    <message>
        <source>常亮</source>
        <translation>Sáng tĩnh</translation>
    </message>
    <message>
        <source>呼吸</source>
        <translation>Nhịp thở</translation>
    </message>
    <message>
        <source>流星</source>
        <translation>Sao băng</translation>
    </message>
    <message>
        <source>涟漪</source>
        <translation>Gợn sóng</translation>
    </message>
    <message>
        <source>极光</source>
        <translation>Cực quang</translation>
    </message>
    <message>
        <source>雨滴</source>
        <translation>Giọt mưa</translation>
    </message>
    <message>
        <source>聚合</source>
        <translation>Hội tụ</translation>
    </message>
    <message>
        <source>川流不息</source>
        <translation>Dòng chảy</translation>
    </message>
    <message>
        <source>霓虹</source>
        <translation>Neon</translation>
    </message>
    <message>
        <source>光波</source>
        <translation>Sóng ánh sáng</translation>
    </message>
    <message>
        <source>繁星点点</source>
        <translation>Trời sao</translation>
    </message>
    <message>
        <source>如影随形</source>
        <translation>Như hình với bóng</translation>
    </message>
    <message>
        <source>正弦波</source>
        <translation>Sóng sin</translation>
    </message>
    <message>
        <source>彩泉涌动</source>
        <translation>Suối màu</translation>
    </message>
    <message>
        <source>百花争艳</source>
        <translation>Trăm hoa đua nở</translation>
    </message>
    <message>
        <source>一石二鸟</source>
        <translation>Một công đôi việc</translation>
    </message>
    <message>
        <source>峰回路转</source>
        <translation>Đường uốn lượn</translation>
    </message>
    <message>
        <source>斜风细雨</source>
        <translation>Mưa bụi</translation>
    </message>
    <message>
        <source>踏雪无痕</source>
        <translation>Đạp tuyết vô ngân</translation>
    </message>
    <message>
        <source>层出不穷</source>
        <translation>Lớp lớp</translation>
    </message>
    <message>
        <source>光影</source>
        <translation>Sáng tối</translation>
    </message>
    <message>
        <source>音乐律动</source>
        <translation>Nhịp nhạc</translation>
    </message>
    <message>
        <source>自定义</source>
        <translation>Tùy chỉnh</translation>
    </message>
    <message>
        <source>左</source>
        <translation>Trái</translation>
    </message>
    <message>
        <source>右</source>
        <translation>Phải</translation>
    </message>
    <message>
        <source>上</source>
        <translation>Lên</translation>
    </message>
    <message>
        <source>下</source>
        <translation>Xuống</translation>
    </message>
    <message>
        <source>Z形</source>
        <translation>Hình chữ Z</translation>
    </message>
    <message>
        <source>回形</source>
        <translation>Xoắn ốc</translation>
    </message>
    <message>
        <source>向内</source>
        <translation>Vào trong</translation>
    </message>
    <message>
        <source>向外</source>
        <translation>Ra ngoài</translation>
    </message>
    <message>
        <source>向右</source>
        <translation>Sang phải</translation>
    </message>
    <message>
        <source>向左</source>
        <translation>Sang trái</translation>
    </message>
    <message>
        <source>图案1</source>
        <translation>Hình 1</translation>
    </message>
    <message>
        <source>图案2</source>
        <translation>Hình 2</translation>
    </message>
    <message>
        <source>图案3</source>
        <translation>Hình 3</translation>
    </message>
    <message>
        <source>图案4</source>
        <translation>Hình 4</translation>
    </message>
    <message>
        <source>图案5</source>
        <translation>Hình 5</translation>
    </message>
    <message>
        <source>顺时针</source>
        <translation>Theo chiều kim đồng hồ</translation>
    </message>
    <message>
        <source>逆时针</source>
        <translation>Ngược chiều kim đồng hồ</translation>
    </message>
    <message>
        <source>无</source>
        <translation>Không có</translation>
    </message>
</context>
<context>
    <name>ModuleEfSpeed</name>
    <message>
        <source>灯光速度</source>
        <translation>Tốc độ</translation>
    </message>
</context>
<context>
    <name>ModuleGenKeymapping</name>
    <message>
        <source>上一曲</source>
        <translation>Bài trước</translation>
    </message>
    <message>
        <source>下一曲</source>
        <translation>Bài tiếp theo</translation>
    </message>
    <message>
        <source>播放/暂停</source>
        <translation>Phát/Tạm dừng</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>Dừng</translation>
    </message>
    <message>
        <source>静音</source>
        <translation>Tắt tiếng</translation>
    </message>
    <message>
        <source>音量+</source>
        <translation>Âm lượng&#xa0;+</translation>
    </message>
    <message>
        <source>音量-</source>
        <translation>Âm lượng&#xa0;−</translation>
    </message>
    <message>
        <source>播放器</source>
        <translation>Trình phát</translation>
    </message>
    <message>
        <source>计算器</source>
        <translation>Máy tính bỏ túi</translation>
    </message>
    <message>
        <source>邮件</source>
        <translation>Thư</translation>
    </message>
    <message>
        <source>我的电脑</source>
        <translation>PC này</translation>
    </message>
    <message>
        <source>搜索</source>
        <translation>Tìm kiếm</translation>
    </message>
    <message>
        <source>主页</source>
        <translation>Trang chủ</translation>
    </message>
    <message>
        <source>后退</source>
        <translation>Lùi</translation>
    </message>
    <message>
        <source>前进</source>
        <translation>Tiến</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>Làm mới</translation>
    </message>
    <message>
        <source>收藏</source>
        <translation>Yêu thích</translation>
    </message>
    <message>
        <source>亮度+</source>
        <translation>Độ sáng màn hình&#xa0;+</translation>
    </message>
    <message>
        <source>亮度-</source>
        <translation>Độ sáng màn hình&#xa0;−</translation>
    </message>
    <message>
        <source>放大</source>
        <translation>Phóng to</translation>
    </message>
    <message>
        <source>缩小</source>
        <translation>Thu nhỏ</translation>
    </message>
    <message>
        <source>呼出Siri</source>
        <translation>Gọi Siri</translation>
    </message>
    <message>
        <source>切换输入法</source>
        <translation>Đổi bộ gõ</translation>
    </message>
    <message>
        <source>返回</source>
        <translation>Quay lại</translation>
    </message>
    <message>
        <source>Fn键锁屏</source>
        <translation>Khóa Fn</translation>
    </message>
    <message>
        <source>锁屏</source>
        <translation>Khóa màn hình</translation>
    </message>
    <message>
        <source>R-Fn键</source>
        <translation>Phím R-Fn</translation>
    </message>
    <message>
        <source>DPI-Loop</source>
        <translation>Xoay vòng DPI</translation>
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
        <translation>Nguồn</translation>
    </message>
    <message>
        <source>睡眠</source>
        <translation>Ngủ</translation>
    </message>
    <message>
        <source>唤醒</source>
        <translation>Đánh thức</translation>
    </message>
    <message>
        <source>Profile-Value</source>
        <translation>Giá trị profile</translation>
    </message>
    <message>
        <source>Profile+</source>
        <translation>Profile&#xa0;+</translation>
    </message>
    <message>
        <source>Profile-</source>
        <translation>Profile&#xa0;−</translation>
    </message>
    <message>
        <source>Profile-Loop</source>
        <translation>Xoay vòng profile</translation>
    </message>
    <message>
        <source>Profile-1</source>
        <translation>Profile 1</translation>
    </message>
    <message>
        <source>Profile-2</source>
        <translation>Profile 2</translation>
    </message>
    <message>
        <source>Profile-3</source>
        <translation>Profile 3</translation>
    </message>
    <message>
        <source>Profile-4</source>
        <translation>Profile 4</translation>
    </message>
    <message>
        <source>Profile-5</source>
        <translation>Profile 5</translation>
    </message>
    <message>
        <source>L-Fn键</source>
        <translation>Phím L-Fn</translation>
    </message>
    <message>
        <source>恢复出厂设置</source>
        <translation>Khôi phục cài đặt gốc</translation>
    </message>
    <message>
        <source>锁Win</source>
        <translation>Khóa phím Win</translation>
    </message>
    <message>
        <source>切换Win</source>
        <translation>Chuyển sang Win</translation>
    </message>
    <message>
        <source>切换Mac</source>
        <translation>Chuyển sang Mac</translation>
    </message>
    <message>
        <source>系统切换</source>
        <translation>Chuyển hệ thống</translation>
    </message>
    <message>
        <source>Check Battery</source>
        <translation>Kiểm tra pin</translation>
    </message>
    <message>
        <source>WASD切换</source>
        <translation>Chuyển WASD</translation>
    </message>
    <message>
        <source>Fn层切换</source>
        <translation>Chuyển lớp Fn</translation>
    </message>
    <message>
        <source>设备节能</source>
        <translation>Tiết kiệm pin</translation>
    </message>
    <message>
        <source>APP CTRL切换</source>
        <translation>Chuyển APP CTRL</translation>
    </message>
    <message>
        <source>背光开/关</source>
        <translation>Bật/tắt đèn nền</translation>
    </message>
    <message>
        <source>背光灯效循环</source>
        <translation>Xoay vòng hiệu ứng nền</translation>
    </message>
    <message>
        <source>背光灯效+</source>
        <translation>Hiệu ứng nền&#xa0;+</translation>
    </message>
    <message>
        <source>背光灯效-</source>
        <translation>Hiệu ứng nền&#xa0;−</translation>
    </message>
    <message>
        <source>背光亮度循环</source>
        <translation>Xoay vòng độ sáng nền</translation>
    </message>
    <message>
        <source>背光亮度+</source>
        <translation>Độ sáng nền&#xa0;+</translation>
    </message>
    <message>
        <source>背光亮度-</source>
        <translation>Độ sáng nền&#xa0;−</translation>
    </message>
    <message>
        <source>背光速度循环</source>
        <translation>Xoay vòng tốc độ nền</translation>
    </message>
    <message>
        <source>背光速度-</source>
        <translation>Tốc độ nền&#xa0;−</translation>
    </message>
    <message>
        <source>背光速度+</source>
        <translation>Tốc độ nền&#xa0;+</translation>
    </message>
    <message>
        <source>背光方向循环</source>
        <translation>Xoay vòng hướng nền</translation>
    </message>
    <message>
        <source>背光向左</source>
        <translation>Đèn nền sang trái</translation>
    </message>
    <message>
        <source>背光向右</source>
        <translation>Đèn nền sang phải</translation>
    </message>
    <message>
        <source>背光颜色循环</source>
        <translation>Xoay vòng màu nền</translation>
    </message>
    <message>
        <source>背光颜色+</source>
        <translation>Màu nền&#xa0;+</translation>
    </message>
    <message>
        <source>背光颜色-</source>
        <translation>Màu nền&#xa0;−</translation>
    </message>
    <message>
        <source>Use Pic 0</source>
        <translation>Dùng hình 0</translation>
    </message>
    <message>
        <source>Use Pic 1</source>
        <translation>Dùng hình 1</translation>
    </message>
    <message>
        <source>Use Pic 2</source>
        <translation>Dùng hình 2</translation>
    </message>
    <message>
        <source>Use Pic 3</source>
        <translation>Dùng hình 3</translation>
    </message>
    <message>
        <source>Use Pic 4</source>
        <translation>Dùng hình 4</translation>
    </message>
    <message>
        <source>Use Pic</source>
        <translation>Dùng hình</translation>
    </message>
    <message>
        <source>侧光开/关</source>
        <translation>Bật/tắt đèn viền</translation>
    </message>
    <message>
        <source>侧光亮度循环</source>
        <translation>Xoay vòng độ sáng viền</translation>
    </message>
    <message>
        <source>侧光速度循环</source>
        <translation>Xoay vòng tốc độ viền</translation>
    </message>
    <message>
        <source>侧光速度+</source>
        <translation>Tốc độ viền&#xa0;+</translation>
    </message>
    <message>
        <source>侧光速度-</source>
        <translation>Tốc độ viền&#xa0;−</translation>
    </message>
    <message>
        <source>侧光颜色循环</source>
        <translation>Xoay vòng màu viền</translation>
    </message>
    <message>
        <source>侧光颜色+</source>
        <translation>Màu viền&#xa0;+</translation>
    </message>
    <message>
        <source>侧光颜色-</source>
        <translation>Màu viền&#xa0;−</translation>
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
        <translation>Có dây</translation>
    </message>
    <message>
        <source>有线-蓝牙-2.4G</source>
        <translation>Có dây-Bluetooth-2.4G</translation>
    </message>
    <message>
        <source>2.4G配对</source>
        <translation>Ghép nối 2.4G</translation>
    </message>
    <message>
        <source>蓝牙配对</source>
        <translation>Ghép nối Bluetooth</translation>
    </message>
    <message>
        <source>Insert键</source>
        <translation>Phím Insert</translation>
    </message>
    <message>
        <source>Print Screen键</source>
        <translation>Phím Print Screen</translation>
    </message>
    <message>
        <source>左键单击</source>
        <translation>Nhấp chuột trái</translation>
    </message>
    <message>
        <source>右键单击</source>
        <translation>Nhấp chuột phải</translation>
    </message>
    <message>
        <source>中键按下</source>
        <translation>Nhấn chuột giữa</translation>
    </message>
    <message>
        <source>光标前进</source>
        <translation>Chuột tiến</translation>
    </message>
    <message>
        <source>光标后退</source>
        <translation>Chuột lùi</translation>
    </message>
    <message>
        <source>滚轮-向左</source>
        <translation>Cuộn trái</translation>
    </message>
    <message>
        <source>滚轮-向右</source>
        <translation>Cuộn phải</translation>
    </message>
    <message>
        <source>滚轮-向上</source>
        <translation>Cuộn lên</translation>
    </message>
    <message>
        <source>滚轮-向下</source>
        <translation>Cuộn xuống</translation>
    </message>
    <message>
        <source>向上滚屏</source>
        <translation>Cuộn trang lên</translation>
    </message>
    <message>
        <source>向下滚屏</source>
        <translation>Cuộn trang xuống</translation>
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
        <translation>Chức năng</translation>
    </message>
    <message>
        <source>鼠标</source>
        <translation>Chuột</translation>
    </message>
    <message>
        <source>组合</source>
        <translation>Tổ hợp</translation>
    </message>
</context>
<context>
    <name>ModuleGeneralMasker</name>
    <message>
        <source>对话框</source>
        <translation>Hộp thoại</translation>
    </message>
</context>
<context>
    <name>ModuleKeyboard</name>
    <message>
        <source>屏幕键盘</source>
        <translation>Bàn phím ảo</translation>
    </message>
    <message>
        <source>已选中按键</source>
        <translation>Phím đã chọn</translation>
    </message>
    <message>
        <source>已修改按键</source>
        <translation>Phím đã sửa</translation>
    </message>
    <message>
        <source>已禁用按键</source>
        <translation>Phím đã tắt</translation>
    </message>
    <message>
        <source>取消禁用</source>
        <translation>Bật lại phím</translation>
    </message>
    <message>
        <source>清除设置</source>
        <translation>Xóa cài đặt</translation>
    </message>
    <message>
        <source>禁用按键</source>
        <translation>Tắt phím</translation>
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
        <translation>Kích hoạt (mm)</translation>
    </message>
    <message>
        <source>抬起(mm)</source>
        <translation>Nhả (mm)</translation>
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
        <translation>Chọn phím ở trên và đặt hai chức năng: một khi nhấn và một khi giữ (hỗ trợ tổ hợp phím)</translation>
    </message>
    <message>
        <source>单击</source>
        <translation>Nhấn</translation>
    </message>
    <message>
        <source>按住</source>
        <translation>Giữ</translation>
    </message>
    <message>
        <source>调整触发“按住&quot;键所需的时间</source>
        <translation>Chỉnh thời gian để kích hoạt “Giữ”</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>按住超过这段时间才执行“按住”的功能</source>
        <translation>Giữ phím lâu hơn mức này sẽ chạy chức năng “Giữ”</translation>
    </message>
</context>
<context>
    <name>ModuleMacroManager</name>
    <message>
        <source>新建宏</source>
        <translation>Macro mới </translation>
    </message>
</context>
<context>
    <name>ModuleRtSet</name>
    <message>
        <source>RT行程设置(全局)</source>
        <translation>Độ nhạy RT (toàn bộ)</translation>
    </message>
</context>
<context>
    <name>ModuleScrollValue</name>
    <message>
        <source>数值滚轮</source>
        <translation>Bánh xe giá trị</translation>
    </message>
</context>
<context>
    <name>ModuleSnapTab</name>
    <message>
        <source>绑定2个选定按键(分别从上面选择)，当两个按键被同时按下时，以最后按下的按键为准</source>
        <translation>Liên kết 2 phím đã chọn (chọn lần lượt ở trên): khi cả hai cùng được nhấn, phím nhấn sau cùng được ưu tiên (SOCD)</translation>
    </message>
    <message>
        <source>选择A键</source>
        <translation>Chọn phím A</translation>
    </message>
    <message>
        <source>选择B键</source>
        <translation>Chọn phím B</translation>
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
        <translation>Chọn phím ở trên và đặt chức năng theo một trong hai kiểu kích hoạt: lặp hoặc giữ</translation>
    </message>
    <message>
        <source>连点</source>
        <translation>Lặp</translation>
    </message>
    <message>
        <source>长按</source>
        <translation>Nhấn giữ</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>未设置功能</source>
        <translation>Chưa đặt</translation>
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
        <translation>Hướng dẫn Orbe 7090: cài đặt macro</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Select All</source>
        <translation>Chọn tất &amp;cả</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>&amp;Tăng</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>&amp;Giảm</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Hoàn tác</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Làm lại</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Cắ&amp;t</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Sao chép</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Dán</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Xóa</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Chọn tất cả</translation>
    </message>
</context>
<context>
    <name>ShellNotices</name>
    <message>
        <source>重试</source>
        <translation>Thử lại</translation>
    </message>
</context>
<context>
    <name>StabilityPage</name>
    <message>
        <source>RT Stab(RT 增稳算法)</source>
        <translation>RT Stab (ổn định RT)</translation>
    </message>
    <message>
        <source>RT Stab打开后，算法会介入增强轴体底部的稳定性。介入百分比越大，稳定性越强，延迟也会有所增加。</source>
        <translation>Khi bật RT Stab, thuật toán giúp đáy switch ổn định hơn. Tỷ lệ càng cao càng ổn định, nhưng độ trễ cũng tăng đôi chút.</translation>
    </message>
    <message>
        <source>0%(关闭)</source>
        <translation>0% (tắt)</translation>
    </message>
    <message>
        <source>防误触模式</source>
        <translation>Chế độ chống nhấn nhầm</translation>
    </message>
    <message>
        <source>(已关闭)</source>
        <translation>(Đã tắt)</translation>
    </message>
    <message>
        <source>防止极限性能下桌面抖动误触发或轴体公差可能造成还有0.1mm的行程公差。开启后优化底部按键算法补足行程差值提高键盘稳定性。</source>
        <translation>Ngăn nhấn nhầm do rung bàn ở thiết lập cực nhạy, hoặc do dung sai switch khoảng 0,1 mm. Khi bật, thuật toán ở đáy hành trình sẽ bù sai lệch để bàn phím ổn định hơn.</translation>
    </message>
    <message>
        <source>已开启</source>
        <translation>Đã bật</translation>
    </message>
    <message>
        <source>已关闭</source>
        <translation>Đã tắt</translation>
    </message>
</context>
<context>
    <name>SwitchTypePage</name>
    <message>
        <source>轴体设置</source>
        <translation>Loại switch</translation>
    </message>
    <message>
        <source>更换键盘轴体后，选择对应轴体的按键，点击下方对应的轴体选项进行设置来区分不同轴体</source>
        <translation>Sau khi thay switch, hãy chọn loại switch tương ứng bên dưới và nhấp vào các phím dùng loại đó để phân biệt</translation>
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
        <translation>Công tắc</translation>
    </message>
</context>
<context>
    <name>TravelPage</name>
    <message>
        <source>单独设置按下抬起触发行程：</source>
        <translation>Đặt riêng điểm kích hoạt và điểm nhả:</translation>
    </message>
    <message>
        <source>全程连续快速触发（RT）</source>
        <translation>Rapid Trigger liên tục (RT)</translation>
    </message>
    <message>
        <source>启用时，快速触发在您完全松开按键时才会终止。
禁用时，松开按键到轴体触发行程后终止快速触发</source>
        <translation>Bật: Rapid Trigger chỉ kết thúc khi bạn nhả hẳn phím.
Tắt: Rapid Trigger kết thúc khi phím nhả lên quá điểm kích hoạt</translation>
    </message>
    <message>
        <source>单独设置按键再次按下触发和松开重置行程</source>
        <translation>Đặt riêng hành trình RT khi nhấn và nhả</translation>
    </message>
    <message>
        <source>再次按下按键触发所需的行程(mm)</source>
        <translation>Hành trình để kích hoạt khi nhấn lại (mm)</translation>
    </message>
    <message>
        <source>松开按键重置所需的行程(mm)</source>
        <translation>Hành trình để đặt lại khi nhả (mm)</translation>
    </message>
    <message>
        <source>设置</source>
        <translation>Áp dụng</translation>
    </message>
    <message>
        <source>抬起后再按下这段距离即再次触发，越小越灵敏</source>
        <translation>Nhấn xuống khoảng này từ bất kỳ vị trí nào sẽ kích hoạt lại; càng nhỏ càng nhạy</translation>
    </message>
    <message>
        <source>按下后抬起这段距离即释放，越小越灵敏</source>
        <translation>Nhả lên khoảng này từ bất kỳ vị trí nào sẽ ngắt phím; càng nhỏ càng nhạy</translation>
    </message>
    <message>
        <source>按键按到多深时触发</source>
        <translation>Phím nhấn sâu bao nhiêu thì kích hoạt</translation>
    </message>
    <message>
        <source>按键抬到多高时释放</source>
        <translation>Phím nhả lên bao nhiêu thì ngắt</translation>
    </message>
</context>
<context>
    <name>TravelRuler</name>
    <message>
        <source>行程测试</source>
        <translation>Kiểm tra hành trình</translation>
    </message>
</context>
<context>
    <name>WorkMeter</name>
    <message>
        <source>正在读取键盘</source>
        <translation>Đang đọc bàn phím</translation>
    </message>
    <message>
        <source>正在写入键盘</source>
        <translation>Đang ghi vào bàn phím</translation>
    </message>
</context>
</TS>
