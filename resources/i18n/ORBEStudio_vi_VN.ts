<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="vi_VN" sourcelanguage="zh_CN">
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
    <name>DemoDesk</name>
    <message>
        <source>虚拟设备</source>
        <translation>Thiết bị ảo</translation>
    </message>
    <message>
        <source>插入或拔出虚拟设备：</source>
        <translation>Cắm hoặc rút thiết bị ảo:</translation>
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
        <translation>Cài đặt macro</translation>
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
        <translation>Bộ nhớ 1</translation>
    </message>
    <message>
        <source>板载 2</source>
        <translation>Bộ nhớ 2</translation>
    </message>
    <message>
        <source>板载 3</source>
        <translation>Bộ nhớ 3</translation>
    </message>
    <message>
        <source>板载 4</source>
        <translation>Bộ nhớ 4</translation>
    </message>
    <message>
        <source>对码</source>
        <translation>Ghép nối</translation>
    </message>
    <message>
        <source>恢复默认</source>
        <translation>Khôi phục mặc định</translation>
    </message>
    <message>
        <source>行程校准</source>
        <translation>Hiệu chuẩn hành trình</translation>
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
        <translation>Thiết bị của tôi</translation>
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
        <translation>Âm lượng +</translation>
    </message>
    <message>
        <source>音量-</source>
        <translation>Âm lượng -</translation>
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
        <translation>Máy tính của tôi</translation>
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
        <translation>Độ sáng màn hình +</translation>
    </message>
    <message>
        <source>亮度-</source>
        <translation>Độ sáng màn hình -</translation>
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
        <translation>Hiệu ứng nền +</translation>
    </message>
    <message>
        <source>背光灯效-</source>
        <translation>Hiệu ứng nền -</translation>
    </message>
    <message>
        <source>背光亮度循环</source>
        <translation>Xoay vòng độ sáng nền</translation>
    </message>
    <message>
        <source>背光亮度+</source>
        <translation>Độ sáng nền +</translation>
    </message>
    <message>
        <source>背光亮度-</source>
        <translation>Độ sáng nền -</translation>
    </message>
    <message>
        <source>背光速度循环</source>
        <translation>Xoay vòng tốc độ nền</translation>
    </message>
    <message>
        <source>背光速度-</source>
        <translation>Tốc độ nền -</translation>
    </message>
    <message>
        <source>背光速度+</source>
        <translation>Tốc độ nền +</translation>
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
        <translation>Màu nền +</translation>
    </message>
    <message>
        <source>背光颜色-</source>
        <translation>Màu nền -</translation>
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
        <translation>Tốc độ viền +</translation>
    </message>
    <message>
        <source>侧光速度-</source>
        <translation>Tốc độ viền -</translation>
    </message>
    <message>
        <source>侧光颜色循环</source>
        <translation>Xoay vòng màu viền</translation>
    </message>
    <message>
        <source>侧光颜色+</source>
        <translation>Màu viền +</translation>
    </message>
    <message>
        <source>侧光颜色-</source>
        <translation>Màu viền -</translation>
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
        <translation>Cài đặt macro</translation>
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
    <name>ModuleScrollValue</name>
    <message>
        <source>数值滚轮</source>
        <translation>Bánh xe giá trị</translation>
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
        <translation>Hướng dẫn Orbe 7090: cài đặt macro</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Có</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Không</translation>
    </message>
</context>
<context>
    <name>ToggleButton</name>
    <message>
        <source>开关</source>
        <translation>Công tắc</translation>
    </message>
</context>
</TS>
