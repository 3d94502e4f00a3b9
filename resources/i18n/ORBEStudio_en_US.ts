<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="zh_CN">
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
        <translation>Command,Data length,Byte0
Command no. (hex),Byte1
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
        <translation>Tabs</translation>
    </message>
</context>
<context>
    <name>CustumSlider</name>
    <message>
        <source>滑块</source>
        <translation>Slider</translation>
    </message>
</context>
<context>
    <name>DemoDesk</name>
    <message>
        <source>虚拟设备</source>
        <translation>Virtual devices</translation>
    </message>
    <message>
        <source>插入或拔出虚拟设备：</source>
        <translation>Plug in or unplug virtual devices:</translation>
    </message>
</context>
<context>
    <name>DialogDeviceConnect</name>
    <message>
        <source>Orbe Studio 设备调试</source>
        <translation>Orbe Studio device debugging</translation>
    </message>
    <message>
        <source>命令目录</source>
        <translation>Command catalogue</translation>
    </message>
</context>
<context>
    <name>FrameAbout</name>
    <message>
        <source>关于</source>
        <translation>About</translation>
    </message>
    <message>
        <source>设备名称：Orbe 7090</source>
        <translation>Device name: Orbe 7090</translation>
    </message>
    <message>
        <source>键盘固件版本：V1.0</source>
        <translation>Keyboard firmware version: V1.0</translation>
    </message>
    <message>
        <source>无线连接器固件版本：V1.0</source>
        <translation>Wireless receiver firmware version: V1.0</translation>
    </message>
    <message>
        <source>当前版本：V1.0</source>
        <translation>Current version: V1.0</translation>
    </message>
    <message>
        <source>检查键盘固件更新</source>
        <translation>Check for keyboard firmware update</translation>
    </message>
    <message>
        <source>检查无线连接器固件更新</source>
        <translation>Check for wireless receiver firmware update</translation>
    </message>
    <message>
        <source>操作教学</source>
        <translation>Tutorials</translation>
    </message>
    <message>
        <source>关于Orbe</source>
        <translation>About Orbe</translation>
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
        <translation>Key settings</translation>
    </message>
    <message>
        <source>磁轴设置</source>
        <translation>Magnetic switch settings</translation>
    </message>
    <message>
        <source>宏设置</source>
        <translation>Macro settings</translation>
    </message>
    <message>
        <source>灯效设置</source>
        <translation>Lighting settings</translation>
    </message>
    <message>
        <source>关于</source>
        <translation>About</translation>
    </message>
    <message>
        <source>用户</source>
        <translation>User</translation>
    </message>
    <message>
        <source>返回</source>
        <translation>Back</translation>
    </message>
    <message>
        <source>板载 1</source>
        <translation>Onboard 1</translation>
    </message>
    <message>
        <source>板载 2</source>
        <translation>Onboard 2</translation>
    </message>
    <message>
        <source>板载 3</source>
        <translation>Onboard 3</translation>
    </message>
    <message>
        <source>板载 4</source>
        <translation>Onboard 4</translation>
    </message>
    <message>
        <source>对码</source>
        <translation>Pair</translation>
    </message>
    <message>
        <source>恢复默认</source>
        <translation>Restore defaults</translation>
    </message>
    <message>
        <source>行程校准</source>
        <translation>Travel calibration</translation>
    </message>
    <message>
        <source>灯光设置</source>
        <translation>Light settings</translation>
    </message>
</context>
<context>
    <name>FrameDeviceShow</name>
    <message>
        <source>剩余电量</source>
        <translation>Battery remaining</translation>
    </message>
</context>
<context>
    <name>FrameSystemInfo</name>
    <message>
        <source>系统设置</source>
        <translation>System settings</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>开机时自动开启本程序</source>
        <translation>Start this program at boot</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
</context>
<context>
    <name>HubTray</name>
    <message>
        <source>显示窗口</source>
        <translation>Show window</translation>
    </message>
    <message>
        <source>隐藏窗口</source>
        <translation>Hide window</translation>
    </message>
    <message>
        <source>退出程序</source>
        <translation>Quit</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>语言</source>
        <translation>Language</translation>
    </message>
    <message>
        <source>系统设置</source>
        <translation>System settings</translation>
    </message>
    <message>
        <source>最小化</source>
        <translation>Minimize</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>搜索设备</source>
        <translation>Search for devices</translation>
    </message>
    <message>
        <source>我的设备</source>
        <translation>My devices</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Notice</translation>
    </message>
    <message>
        <source>确定要退出 ORBE 驱动程序？</source>
        <translation>Are you sure you want to exit the ORBE driver?</translation>
    </message>
    <message>
        <source>正在搜索设备</source>
        <translation>Searching for devices</translation>
    </message>
    <message>
        <source>向左滚动</source>
        <translation>Scroll left</translation>
    </message>
    <message>
        <source>向右滚动</source>
        <translation>Scroll right</translation>
    </message>
    <message>
        <source>返回</source>
        <translation>Back</translation>
    </message>
</context>
<context>
    <name>ModuleGenKeymapping</name>
    <message>
        <source>上一曲</source>
        <translation>Previous track</translation>
    </message>
    <message>
        <source>下一曲</source>
        <translation>Next track</translation>
    </message>
    <message>
        <source>播放/暂停</source>
        <translation>Play/Pause</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>静音</source>
        <translation>Mute</translation>
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
        <translation>Media player</translation>
    </message>
    <message>
        <source>计算器</source>
        <translation>Calculator</translation>
    </message>
    <message>
        <source>邮件</source>
        <translation>Mail</translation>
    </message>
    <message>
        <source>我的电脑</source>
        <translation>My computer</translation>
    </message>
    <message>
        <source>搜索</source>
        <translation>Search</translation>
    </message>
    <message>
        <source>主页</source>
        <translation>Home page</translation>
    </message>
    <message>
        <source>后退</source>
        <translation>Back</translation>
    </message>
    <message>
        <source>前进</source>
        <translation>Forward</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>Refresh</translation>
    </message>
    <message>
        <source>收藏</source>
        <translation>Favorites</translation>
    </message>
    <message>
        <source>亮度+</source>
        <translation>Screen brightness +</translation>
    </message>
    <message>
        <source>亮度-</source>
        <translation>Screen brightness -</translation>
    </message>
    <message>
        <source>放大</source>
        <translation>Zoom in</translation>
    </message>
    <message>
        <source>缩小</source>
        <translation>Zoom out</translation>
    </message>
    <message>
        <source>呼出Siri</source>
        <translation>Call Siri</translation>
    </message>
    <message>
        <source>切换输入法</source>
        <translation>Switch input method</translation>
    </message>
    <message>
        <source>返回</source>
        <translation>Back</translation>
    </message>
    <message>
        <source>Fn键锁屏</source>
        <translation>Fn lock</translation>
    </message>
    <message>
        <source>锁屏</source>
        <translation>Lock screen</translation>
    </message>
    <message>
        <source>R-Fn键</source>
        <translation>R-Fn key</translation>
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
        <translation>Power</translation>
    </message>
    <message>
        <source>睡眠</source>
        <translation>Sleep</translation>
    </message>
    <message>
        <source>唤醒</source>
        <translation>Wake</translation>
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
        <translation>L-Fn key</translation>
    </message>
    <message>
        <source>恢复出厂设置</source>
        <translation>Factory reset</translation>
    </message>
    <message>
        <source>锁Win</source>
        <translation>Lock Win</translation>
    </message>
    <message>
        <source>切换Win</source>
        <translation>Switch to Win</translation>
    </message>
    <message>
        <source>切换Mac</source>
        <translation>Switch to Mac</translation>
    </message>
    <message>
        <source>系统切换</source>
        <translation>Switch system</translation>
    </message>
    <message>
        <source>Check Battery</source>
        <translation>Check battery</translation>
    </message>
    <message>
        <source>WASD切换</source>
        <translation>Switch WASD</translation>
    </message>
    <message>
        <source>Fn层切换</source>
        <translation>Switch Fn layer</translation>
    </message>
    <message>
        <source>设备节能</source>
        <translation>Power saving</translation>
    </message>
    <message>
        <source>APP CTRL切换</source>
        <translation>Switch APP CTRL</translation>
    </message>
    <message>
        <source>背光开/关</source>
        <translation>Backlight on/off</translation>
    </message>
    <message>
        <source>背光灯效循环</source>
        <translation>Backlight effect cycle</translation>
    </message>
    <message>
        <source>背光灯效+</source>
        <translation>Backlight effect +</translation>
    </message>
    <message>
        <source>背光灯效-</source>
        <translation>Backlight effect -</translation>
    </message>
    <message>
        <source>背光亮度循环</source>
        <translation>Backlight brightness cycle</translation>
    </message>
    <message>
        <source>背光亮度+</source>
        <translation>Backlight brightness +</translation>
    </message>
    <message>
        <source>背光亮度-</source>
        <translation>Backlight brightness -</translation>
    </message>
    <message>
        <source>背光速度循环</source>
        <translation>Backlight speed cycle</translation>
    </message>
    <message>
        <source>背光速度-</source>
        <translation>Backlight speed -</translation>
    </message>
    <message>
        <source>背光速度+</source>
        <translation>Backlight speed +</translation>
    </message>
    <message>
        <source>背光方向循环</source>
        <translation>Backlight direction cycle</translation>
    </message>
    <message>
        <source>背光向左</source>
        <translation>Backlight left</translation>
    </message>
    <message>
        <source>背光向右</source>
        <translation>Backlight right</translation>
    </message>
    <message>
        <source>背光颜色循环</source>
        <translation>Backlight color cycle</translation>
    </message>
    <message>
        <source>背光颜色+</source>
        <translation>Backlight color +</translation>
    </message>
    <message>
        <source>背光颜色-</source>
        <translation>Backlight color -</translation>
    </message>
    <message>
        <source>Use Pic 0</source>
        <translation>Use picture 0</translation>
    </message>
    <message>
        <source>Use Pic 1</source>
        <translation>Use picture 1</translation>
    </message>
    <message>
        <source>Use Pic 2</source>
        <translation>Use picture 2</translation>
    </message>
    <message>
        <source>Use Pic 3</source>
        <translation>Use picture 3</translation>
    </message>
    <message>
        <source>Use Pic 4</source>
        <translation>Use picture 4</translation>
    </message>
    <message>
        <source>Use Pic</source>
        <translation>Use picture</translation>
    </message>
    <message>
        <source>侧光开/关</source>
        <translation>Side light on/off</translation>
    </message>
    <message>
        <source>侧光亮度循环</source>
        <translation>Side light brightness cycle</translation>
    </message>
    <message>
        <source>侧光速度循环</source>
        <translation>Side light speed cycle</translation>
    </message>
    <message>
        <source>侧光速度+</source>
        <translation>Side light speed +</translation>
    </message>
    <message>
        <source>侧光速度-</source>
        <translation>Side light speed -</translation>
    </message>
    <message>
        <source>侧光颜色循环</source>
        <translation>Side light color cycle</translation>
    </message>
    <message>
        <source>侧光颜色+</source>
        <translation>Side light color +</translation>
    </message>
    <message>
        <source>侧光颜色-</source>
        <translation>Side light color -</translation>
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
        <translation>Wired</translation>
    </message>
    <message>
        <source>有线-蓝牙-2.4G</source>
        <translation>Wired-Bluetooth-2.4G</translation>
    </message>
    <message>
        <source>2.4G配对</source>
        <translation>2.4G pairing</translation>
    </message>
    <message>
        <source>蓝牙配对</source>
        <translation>Bluetooth pairing</translation>
    </message>
    <message>
        <source>Insert键</source>
        <translation>Insert key</translation>
    </message>
    <message>
        <source>Print Screen键</source>
        <translation>Print Screen key</translation>
    </message>
    <message>
        <source>左键单击</source>
        <translation>Left click</translation>
    </message>
    <message>
        <source>右键单击</source>
        <translation>Right click</translation>
    </message>
    <message>
        <source>中键按下</source>
        <translation>Middle click</translation>
    </message>
    <message>
        <source>光标前进</source>
        <translation>Mouse forward</translation>
    </message>
    <message>
        <source>光标后退</source>
        <translation>Mouse back</translation>
    </message>
    <message>
        <source>滚轮-向左</source>
        <translation>Wheel left</translation>
    </message>
    <message>
        <source>滚轮-向右</source>
        <translation>Wheel right</translation>
    </message>
    <message>
        <source>滚轮-向上</source>
        <translation>Wheel up</translation>
    </message>
    <message>
        <source>滚轮-向下</source>
        <translation>Wheel down</translation>
    </message>
    <message>
        <source>向上滚屏</source>
        <translation>Scroll up</translation>
    </message>
    <message>
        <source>向下滚屏</source>
        <translation>Scroll down</translation>
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
        <translation>Macro settings</translation>
    </message>
    <message>
        <source>功能</source>
        <translation>Function</translation>
    </message>
    <message>
        <source>鼠标</source>
        <translation>Mouse</translation>
    </message>
    <message>
        <source>组合</source>
        <translation>Combo</translation>
    </message>
</context>
<context>
    <name>ModuleGeneralMasker</name>
    <message>
        <source>对话框</source>
        <translation>Dialog</translation>
    </message>
</context>
<context>
    <name>ModuleKeyboard</name>
    <message>
        <source>屏幕键盘</source>
        <translation>On-screen keyboard</translation>
    </message>
    <message>
        <source>已选中按键</source>
        <translation>Selected key</translation>
    </message>
    <message>
        <source>已修改按键</source>
        <translation>Modified key</translation>
    </message>
    <message>
        <source>已禁用按键</source>
        <translation>Disabled key</translation>
    </message>
    <message>
        <source>取消禁用</source>
        <translation>Enable key</translation>
    </message>
    <message>
        <source>清除设置</source>
        <translation>Clear setting</translation>
    </message>
    <message>
        <source>禁用按键</source>
        <translation>Disable key</translation>
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
        <translation>Value wheel</translation>
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
        <translation>Orbe 7090 guide: macro settings</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Yes</translation>
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
        <translation>Switch</translation>
    </message>
</context>
</TS>
