<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="zh_CN">
<context>
    <name>ColorSlider</name>
    <message>
        <source>色相</source>
        <translation>Hue</translation>
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
    <name>DeadZonePage</name>
    <message>
        <source>死区设置</source>
        <translation>Dead zones</translation>
    </message>
    <message>
        <source>按键死区设定</source>
        <translation>Key dead zones</translation>
    </message>
    <message>
        <source>触底到抬起前的距离俗称“死区”。死区可减少磁轴因环境干扰带来的断触问题，磁轴的底部可自定义，您可根据个人需求自定义死区，设定之后，此段行程不会触发。</source>
        <translation>The distance from bottoming out until the key starts to lift is called the dead zone. It keeps interference from interrupting a held magnetic switch. Set it to your liking; travel inside the dead zone triggers nothing.</translation>
    </message>
    <message>
        <source>设置</source>
        <translation>Apply</translation>
    </message>
    <message>
        <source>顶部死区</source>
        <translation>Top dead zone</translation>
    </message>
    <message>
        <source>底部死区</source>
        <translation>Bottom dead zone</translation>
    </message>
    <message>
        <source>按键顶部不触发的距离，可防误触</source>
        <translation>Travel at the top that does nothing, against accidental presses</translation>
    </message>
    <message>
        <source>按键底部不响应的距离，可防抖动</source>
        <translation>Travel at the bottom that does nothing, against flutter of a key held down</translation>
    </message>
</context>
<context>
    <name>DemoBoard</name>
    <message>
        <source>没有插入键盘</source>
        <translation>No keyboard plugged in</translation>
    </message>
    <message>
        <source>虚拟键盘的灯光</source>
        <translation>Virtual keyboard lighting</translation>
    </message>
    <message>
        <source>虚拟键盘</source>
        <translation>Virtual keyboard</translation>
    </message>
    <message>
        <source>单击按键即可按下它，部分灯效会作出反应。</source>
        <translation>Click a key to press it; some effects react.</translation>
    </message>
    <message>
        <source>灯光已关闭</source>
        <translation>Lighting off</translation>
    </message>
    <message>
        <source>%1 · 亮度 %2% · 速度 %3%</source>
        <translation>%1 · brightness %2% · speed %3%</translation>
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
    <message>
        <source>依次按下所有按键</source>
        <translation>Press all keys one after another</translation>
    </message>
    <message>
        <source>显示键盘的灯光</source>
        <translation>Show the keyboard&apos;s lighting</translation>
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
        <translation>2.4G backlight off</translation>
    </message>
    <message>
        <source>蓝牙关闭背光</source>
        <translation>Bluetooth backlight off</translation>
    </message>
    <message>
        <source>2.4G深度睡眠时间</source>
        <translation>2.4G deep sleep time</translation>
    </message>
    <message>
        <source>分钟</source>
        <translation>min</translation>
    </message>
    <message>
        <source>蓝牙深度睡眠时间</source>
        <translation>Bluetooth deep sleep time</translation>
    </message>
    <message>
        <source>按键防抖等级设置</source>
        <translation>Debounce level</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>键盘每秒向电脑报告的次数，越高延迟越低</source>
        <translation>How many times a second the keyboard reports to the computer; higher means less latency</translation>
    </message>
    <message>
        <source>不按键多久后关闭背光</source>
        <translation>How long without a key press until the backlight turns off</translation>
    </message>
    <message>
        <source>不按键多久后进入深度睡眠，可省电</source>
        <translation>How long without a key press until the keyboard goes into deep sleep, which saves battery</translation>
    </message>
    <message>
        <source>级别越高越能避免连击，但会增加延迟</source>
        <translation>A higher level prevents double presses better, but adds latency</translation>
    </message>
</context>
<context>
    <name>DeviceTrouble</name>
    <message>
        <source>系统不允许访问此键盘。请将 70-orbehub.rules 复制到 /etc/udev/rules.d，然后重新插拔键盘。</source>
        <translation>The system doesn’t allow access to this keyboard. Copy 70-orbehub.rules to /etc/udev/rules.d and plug the keyboard in again.</translation>
    </message>
    <message>
        <source>系统不允许访问此键盘。请检查您的用户权限，然后重新插拔键盘。</source>
        <translation>The system doesn’t allow access to this keyboard. Check your user rights and plug the keyboard in again.</translation>
    </message>
    <message>
        <source>已断开</source>
        <translation>Disconnected</translation>
    </message>
    <message>
        <source>键盘已断开，重新连接后即可使用。</source>
        <translation>The keyboard is disconnected. Plug it in again to use it.</translation>
    </message>
    <message>
        <source>没有响应</source>
        <translation>Not responding</translation>
    </message>
    <message>
        <source>键盘没有响应，可能处于休眠状态，请按任意键唤醒。</source>
        <translation>The keyboard isn’t responding. It may be asleep: press any key to wake it.</translation>
    </message>
    <message>
        <source>没有访问权限</source>
        <translation>No access</translation>
    </message>
    <message>
        <source>无法打开</source>
        <translation>Can’t be opened</translation>
    </message>
    <message>
        <source>无法打开键盘，可能正被其他程序占用。请关闭该程序后重新插拔键盘。</source>
        <translation>The keyboard can’t be opened. Another program may be holding it: close that program and plug the keyboard in again.</translation>
    </message>
    <message>
        <source>键盘</source>
        <translation>Keyboard</translation>
    </message>
</context>
<context>
    <name>DialogColorPicker</name>
    <message>
        <source>取色器</source>
        <translation>Color picker</translation>
    </message>
    <message>
        <source>按住并拖到屏幕上的任意位置取色</source>
        <translation>Hold and drag anywhere on the screen to pick a color</translation>
    </message>
    <message>
        <source>完成</source>
        <translation>Done</translation>
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
        <translation>Command catalog</translation>
    </message>
</context>
<context>
    <name>DialogFNPicker</name>
    <message>
        <source>组合键</source>
        <translation>Key combination</translation>
    </message>
    <message>
        <source>基本字符</source>
        <translation>Basic keys</translation>
    </message>
    <message>
        <source>拓展字符(按键)</source>
        <translation>Extra keys</translation>
    </message>
    <message>
        <source>宏设置</source>
        <translation>Macros</translation>
    </message>
    <message>
        <source>播放方式:</source>
        <translation>Playback mode:</translation>
    </message>
    <message>
        <source>循环次数</source>
        <translation>Repeat count</translation>
    </message>
    <message>
        <source>自动</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>按下</source>
        <translation>Press</translation>
    </message>
    <message>
        <source>系统功能</source>
        <translation>System functions</translation>
    </message>
    <message>
        <source>鼠标功能</source>
        <translation>Mouse functions</translation>
    </message>
    <message>
        <source>设置功能为:</source>
        <translation>Set function to:</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>左键</source>
        <translation>Left</translation>
    </message>
    <message>
        <source>右键</source>
        <translation>Right</translation>
    </message>
    <message>
        <source>中键</source>
        <translation>Middle</translation>
    </message>
    <message>
        <source>前移</source>
        <translation>Forward</translation>
    </message>
    <message>
        <source>后移</source>
        <translation>Back</translation>
    </message>
    <message>
        <source>左滚</source>
        <translation>Wheel left</translation>
    </message>
    <message>
        <source>右滚</source>
        <translation>Wheel right</translation>
    </message>
    <message>
        <source>上滚</source>
        <translation>Wheel up</translation>
    </message>
    <message>
        <source>下滚</source>
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
        <source>自定义按键</source>
        <translation>Custom keys</translation>
    </message>
    <message>
        <source>宏</source>
        <translation>Macro </translation>
    </message>
    <message>
        <source>未录制的宏</source>
        <translation>Macro not recorded</translation>
    </message>
</context>
<context>
    <name>DialogVKPicker</name>
    <message>
        <source>基本字符</source>
        <translation>Basic keys</translation>
    </message>
    <message>
        <source>拓展字符</source>
        <translation>Extra keys</translation>
    </message>
    <message>
        <source>组合键：</source>
        <translation>Key combination:</translation>
    </message>
    <message>
        <source>确认</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>组合键</source>
        <translation>Key combination</translation>
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
        <translation>Macros</translation>
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
        <translation>Pair</translation>
    </message>
    <message>
        <source>恢复默认</source>
        <translation>Restore defaults</translation>
    </message>
    <message>
        <source>行程校准</source>
        <translation>Calibration</translation>
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
    <name>FrameKeySetting</name>
    <message>
        <source>自定义</source>
        <translation>Custom</translation>
    </message>
    <message>
        <source>高级键</source>
        <translation>Advanced</translation>
    </message>
    <message>
        <source>其他设置</source>
        <translation>Other</translation>
    </message>
    <message>
        <source>Fn层设置</source>
        <translation>Fn layer</translation>
    </message>
    <message>
        <source>自定义/Fn层设置</source>
        <translation>Custom / Fn layer settings</translation>
    </message>
    <message>
        <source>*首先点击选择上方按键，在弹出的对话框中可选择组合键、宏设置、系统功能、鼠标功能进行改建设置</source>
        <translation>*Click a key above first, then pick a key combination, macro, system function or mouse function in the dialog to remap it</translation>
    </message>
    <message>
        <source>*右键点击按键可清除设置、禁用按键或取消禁用</source>
        <translation>*Right-click a key to clear its setting, disable it or enable it again</translation>
    </message>
    <message>
        <source>动态键程(DKS)</source>
        <translation>Dynamic keystroke (DKS)</translation>
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
        <translation>Fn layer key settings</translation>
    </message>
    <message>
        <source>自定义按键</source>
        <translation>Custom keys</translation>
    </message>
</context>
<context>
    <name>FrameLight</name>
    <message>
        <source>点击按键上色，拖动可给多个按键上色</source>
        <translation>Click a key to paint it, or drag across keys to paint several</translation>
    </message>
    <message>
        <source>我的作品</source>
        <translation>My designs</translation>
    </message>
    <message>
        <source>颜色:</source>
        <translation>Color:</translation>
    </message>
    <message>
        <source>取色器：</source>
        <translation>Color picker:</translation>
    </message>
    <message>
        <source>随机颜色：</source>
        <translation>Random color:</translation>
    </message>
    <message>
        <source>清除设置</source>
        <translation>Clear setting</translation>
    </message>
    <message>
        <source>写入层(图):</source>
        <translation>Write to layer:</translation>
    </message>
    <message>
        <source>图1</source>
        <translation>Pic 1</translation>
    </message>
    <message>
        <source>图2</source>
        <translation>Pic 2</translation>
    </message>
    <message>
        <source>图3</source>
        <translation>Pic 3</translation>
    </message>
    <message>
        <source>图4</source>
        <translation>Pic 4</translation>
    </message>
    <message>
        <source>图5</source>
        <translation>Pic 5</translation>
    </message>
    <message>
        <source>读取层(图):</source>
        <translation>Read from layer:</translation>
    </message>
    <message>
        <source>作品名称:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>更新</source>
        <translation>Update</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>还没有作品，给按键上色后点击“保存”</source>
        <translation>No designs yet. Paint some keys, then press Save</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Notice</translation>
    </message>
    <message>
        <source>确认要删除此作品吗？</source>
        <translation>Delete this design?</translation>
    </message>
    <message>
        <source>我的作品%1</source>
        <translation>My design %1</translation>
    </message>
    <message>
        <source>作品已保存</source>
        <translation>Design saved</translation>
    </message>
    <message>
        <source>把现在的颜色写入键盘的这一层</source>
        <translation>Stores the colors shown in this layer of the keyboard</translation>
    </message>
    <message>
        <source>显示键盘这一层里的颜色</source>
        <translation>Shows the colors that the keyboard holds in this layer</translation>
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
        <translation>Release</translation>
    </message>
    <message>
        <source>按下</source>
        <translation>Press</translation>
    </message>
    <message>
        <source>延迟</source>
        <translation>Delay</translation>
    </message>
    <message>
        <source>开始录制</source>
        <translation>Start recording</translation>
    </message>
    <message>
        <source>插入</source>
        <translation>Insert</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>清空</source>
        <translation>Clear</translation>
    </message>
    <message>
        <source>设置固定延迟(ms):</source>
        <translation>Set fixed delay (ms):</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>新建宏</source>
        <translation>New macro</translation>
    </message>
    <message>
        <source>停止录制</source>
        <translation>Stop recording</translation>
    </message>
    <message>
        <source>点击“开始录制”后按下按键，或点击“插入”添加事件</source>
        <translation>Click “Start recording” and press keys, or click “Insert” to add an event</translation>
    </message>
    <message>
        <source>请在左侧选择一个宏</source>
        <translation>Choose a macro on the left</translation>
    </message>
    <message>
        <source>占用</source>
        <translation>Used</translation>
    </message>
    <message>
        <source>字节</source>
        <translation>bytes</translation>
    </message>
    <message>
        <source>录制键盘和鼠标按键，再次点击结束</source>
        <translation>Records keys and mouse buttons until it is pressed again</translation>
    </message>
    <message>
        <source>把所有延迟都设为右侧的值</source>
        <translation>Sets every delay to the number on the right</translation>
    </message>
</context>
<context>
    <name>FrameMagic</name>
    <message>
        <source>行程设置</source>
        <translation>Actuation</translation>
    </message>
    <message>
        <source>死区设置</source>
        <translation>Dead zones</translation>
    </message>
    <message>
        <source>轴体设置</source>
        <translation>Switch type</translation>
    </message>
    <message>
        <source>增稳算法</source>
        <translation>Stabilization</translation>
    </message>
    <message>
        <source>模拟测试</source>
        <translation>Test</translation>
    </message>
    <message>
        <source>已选中按键的数量</source>
        <translation>Keys selected</translation>
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
        <translation>Mechanical switch</translation>
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
        <translation>Low-profile magnetic</translation>
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
        <translation>Custom</translation>
    </message>
</context>
<context>
    <name>FrameMain</name>
    <message>
        <source>键程设置(全局)</source>
        <translation>Actuation (global)</translation>
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
        <translation>Launch this program at startup</translation>
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
    <name>KeyBubble</name>
    <message>
        <source>系统按键</source>
        <translation>System key</translation>
    </message>
    <message>
        <source>动态键程</source>
        <translation>Dynamic keystroke</translation>
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
        <translation>Macros</translation>
    </message>
</context>
<context>
    <name>KeyTestPage</name>
    <message>
        <source>行程测试</source>
        <translation>Travel test</translation>
    </message>
    <message>
        <source>按键测试</source>
        <translation>Key test</translation>
    </message>
    <message>
        <source>输入值</source>
        <translation>Input</translation>
    </message>
    <message>
        <source>按下任意按键。无线连接下没有实时行程数据。</source>
        <translation>Press any key. There is no live travel data over wireless.</translation>
    </message>
</context>
<context>
    <name>LightWorksModel</name>
    <message>
        <source>删除</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>预览图,作品名称,管理</source>
        <translation>Preview,Name,Manage</translation>
    </message>
</context>
<context>
    <name>LinearFixing1</name>
    <message>
        <source>行程校准操作指南</source>
        <translation>Travel calibration guide</translation>
    </message>
    <message>
        <source>请依次将每个按键轻按到底并停留至少1秒钟，直到按键变为橙色（表示该按键校准成功），请勿遗漏，可重复按按键。无线下不支持按键校准个数提示。校准过程中请勿拔出数据线。</source>
        <translation>Press each key gently all the way down, one after another, and hold it for at least 1 second until it turns orange (this key is calibrated). Don’t miss any; keys may be pressed again. The count of calibrated keys is not available over wireless. Don’t unplug the cable during calibration.</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>开始校准</source>
        <translation>Start calibration</translation>
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
        <translation>Press each key gently all the way down, one after another, and hold it for at least 1 second until it turns orange (this key is calibrated). Don’t miss any; keys may be pressed again. The count of calibrated keys is not available over wireless. Don’t unplug the cable during calibration.</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>完成校准</source>
        <translation>Finish calibration</translation>
    </message>
</context>
<context>
    <name>MacroItem</name>
    <message>
        <source>重命名</source>
        <translation>Rename</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Delete</translation>
    </message>
</context>
<context>
    <name>MacroSquare</name>
    <message>
        <source>插入</source>
        <translation>Insert</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>延迟</source>
        <translation>Delay</translation>
    </message>
    <message>
        <source>左键</source>
        <translation>Left</translation>
    </message>
    <message>
        <source>右键</source>
        <translation>Right</translation>
    </message>
    <message>
        <source>中键</source>
        <translation>Middle</translation>
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
        <translation>My devices </translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Notice</translation>
    </message>
    <message>
        <source>确定要退出 ORBE 驱动程序？</source>
        <translation>Are you sure you want to quit the ORBE driver?</translation>
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
    <name>MessageBox</name>
    <message>
        <source>是</source>
        <translation>Yes</translation>
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
        <translation>Cancel</translation>
    </message>
</context>
<context>
    <name>ModuleAddMacroSquare</name>
    <message>
        <source>请选择添加宏事件类型</source>
        <translation>Choose the kind of macro event</translation>
    </message>
    <message>
        <source>键盘按键</source>
        <translation>Keyboard key</translation>
    </message>
    <message>
        <source>请按下按键......</source>
        <translation>Press a key…</translation>
    </message>
    <message>
        <source>鼠标按键</source>
        <translation>Mouse button</translation>
    </message>
    <message>
        <source>左键</source>
        <translation>Left</translation>
    </message>
    <message>
        <source>中键</source>
        <translation>Middle</translation>
    </message>
    <message>
        <source>右键</source>
        <translation>Right</translation>
    </message>
    <message>
        <source>鼠标位置</source>
        <translation>Mouse position</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
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
        <translation>Press (mm)</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Save</translation>
    </message>
</context>
<context>
    <name>ModuleDKSItem</name>
    <message>
        <source>按下触发</source>
        <translation>Pressed past actuation</translation>
    </message>
    <message>
        <source>按到底部</source>
        <translation>Bottomed out</translation>
    </message>
    <message>
        <source>离开底部</source>
        <translation>Lifted off the bottom</translation>
    </message>
    <message>
        <source>回到顶部</source>
        <translation>Back at the top</translation>
    </message>
    <message>
        <source>未设置功能</source>
        <translation>Not set</translation>
    </message>
    <message>
        <source>已开启</source>
        <translation>On</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Off</translation>
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
        <translation>Pressed past actuation</translation>
    </message>
    <message>
        <source>按到底部</source>
        <translation>Bottomed out</translation>
    </message>
    <message>
        <source>离开底部</source>
        <translation>Lifted off the bottom</translation>
    </message>
    <message>
        <source>回到顶部</source>
        <translation>Back at the top</translation>
    </message>
</context>
<context>
    <name>ModuleEfColor</name>
    <message>
        <source>系统默认</source>
        <translation>Default</translation>
    </message>
    <message>
        <source>自定义</source>
        <translation>Custom</translation>
    </message>
    <message>
        <source>单键</source>
        <translation>Single key</translation>
    </message>
    <message>
        <source>灯带灯效设置</source>
        <translation>Light strip</translation>
    </message>
    <message>
        <source>灯效：</source>
        <translation>Effect:</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>常亮</source>
        <translation>Static</translation>
    </message>
    <message>
        <source>呼吸</source>
        <translation>Breathing</translation>
    </message>
    <message>
        <source>川流不息</source>
        <translation>Stream</translation>
    </message>
    <message>
        <source>霓虹</source>
        <translation>Neon</translation>
    </message>
    <message>
        <source>光波</source>
        <translation>Light wave</translation>
    </message>
    <message>
        <source>色彩：</source>
        <translation>Color:</translation>
    </message>
    <message>
        <source>炫彩</source>
        <translation>RGB</translation>
    </message>
    <message>
        <source>亮度：</source>
        <translation>Brightness:</translation>
    </message>
    <message>
        <source>速度：</source>
        <translation>Speed:</translation>
    </message>
    <message>
        <source>颜色%1</source>
        <translation>Color %1</translation>
    </message>
    <message>
        <source>取色器</source>
        <translation>Color picker</translation>
    </message>
</context>
<context>
    <name>ModuleEfLumi</name>
    <message>
        <source>灯光亮度</source>
        <translation>Brightness</translation>
    </message>
</context>
<context>
    <name>ModuleEfMode</name>
    <message>
        <source>灯效模式</source>
        <translation>Lighting mode</translation>
    </message>
    <message>
        <source>关灯</source>
        <translation>Lights off</translation>
    </message>
    <message>
        <source>灯光播放模式:</source>
        <translation>Playback mode:</translation>
    </message>
    <message>
        <source>常亮</source>
        <translation>Static</translation>
    </message>
    <message>
        <source>呼吸</source>
        <translation>Breathing</translation>
    </message>
    <message>
        <source>流星</source>
        <translation>Meteor</translation>
    </message>
    <message>
        <source>涟漪</source>
        <translation>Ripple</translation>
    </message>
    <message>
        <source>极光</source>
        <translation>Aurora</translation>
    </message>
    <message>
        <source>雨滴</source>
        <translation>Raindrops</translation>
    </message>
    <message>
        <source>聚合</source>
        <translation>Converge</translation>
    </message>
    <message>
        <source>川流不息</source>
        <translation>Stream</translation>
    </message>
    <message>
        <source>霓虹</source>
        <translation>Neon</translation>
    </message>
    <message>
        <source>光波</source>
        <translation>Light wave</translation>
    </message>
    <message>
        <source>繁星点点</source>
        <translation>Starry sky</translation>
    </message>
    <message>
        <source>如影随形</source>
        <translation>Shadow</translation>
    </message>
    <message>
        <source>正弦波</source>
        <translation>Sine wave</translation>
    </message>
    <message>
        <source>彩泉涌动</source>
        <translation>Color fountain</translation>
    </message>
    <message>
        <source>百花争艳</source>
        <translation>Blossom</translation>
    </message>
    <message>
        <source>一石二鸟</source>
        <translation>Two birds</translation>
    </message>
    <message>
        <source>峰回路转</source>
        <translation>Winding path</translation>
    </message>
    <message>
        <source>斜风细雨</source>
        <translation>Drizzle</translation>
    </message>
    <message>
        <source>踏雪无痕</source>
        <translation>Traceless snow</translation>
    </message>
    <message>
        <source>层出不穷</source>
        <translation>Layers</translation>
    </message>
    <message>
        <source>光影</source>
        <translation>Light and shade</translation>
    </message>
    <message>
        <source>音乐律动</source>
        <translation>Music rhythm</translation>
    </message>
    <message>
        <source>自定义</source>
        <translation>Custom</translation>
    </message>
    <message>
        <source>左</source>
        <translation>Left</translation>
    </message>
    <message>
        <source>右</source>
        <translation>Right</translation>
    </message>
    <message>
        <source>上</source>
        <translation>Up</translation>
    </message>
    <message>
        <source>下</source>
        <translation>Down</translation>
    </message>
    <message>
        <source>Z形</source>
        <translation>Z shape</translation>
    </message>
    <message>
        <source>回形</source>
        <translation>Spiral</translation>
    </message>
    <message>
        <source>向内</source>
        <translation>Inward</translation>
    </message>
    <message>
        <source>向外</source>
        <translation>Outward</translation>
    </message>
    <message>
        <source>向右</source>
        <translation>To the right</translation>
    </message>
    <message>
        <source>向左</source>
        <translation>To the left</translation>
    </message>
    <message>
        <source>图案1</source>
        <translation>Picture 1</translation>
    </message>
    <message>
        <source>图案2</source>
        <translation>Picture 2</translation>
    </message>
    <message>
        <source>图案3</source>
        <translation>Picture 3</translation>
    </message>
    <message>
        <source>图案4</source>
        <translation>Picture 4</translation>
    </message>
    <message>
        <source>图案5</source>
        <translation>Picture 5</translation>
    </message>
    <message>
        <source>顺时针</source>
        <translation>Clockwise</translation>
    </message>
    <message>
        <source>逆时针</source>
        <translation>Counterclockwise</translation>
    </message>
    <message>
        <source>无</source>
        <translation>None</translation>
    </message>
</context>
<context>
    <name>ModuleEfSpeed</name>
    <message>
        <source>灯光速度</source>
        <translation>Speed</translation>
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
        <translation>Volume&#xa0;+</translation>
    </message>
    <message>
        <source>音量-</source>
        <translation>Volume&#xa0;−</translation>
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
        <translation>This PC</translation>
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
        <translation>Screen brightness&#xa0;+</translation>
    </message>
    <message>
        <source>亮度-</source>
        <translation>Screen brightness&#xa0;−</translation>
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
        <translation>Activate Siri</translation>
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
        <translation>Cycle DPI</translation>
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
        <translation>Profile value</translation>
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
        <translation>Cycle profiles</translation>
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
        <translation>L-Fn key</translation>
    </message>
    <message>
        <source>恢复出厂设置</source>
        <translation>Factory reset</translation>
    </message>
    <message>
        <source>锁Win</source>
        <translation>Win lock</translation>
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
        <translation>Toggle WASD</translation>
    </message>
    <message>
        <source>Fn层切换</source>
        <translation>Toggle Fn layer</translation>
    </message>
    <message>
        <source>设备节能</source>
        <translation>Power saving</translation>
    </message>
    <message>
        <source>APP CTRL切换</source>
        <translation>Toggle APP CTRL</translation>
    </message>
    <message>
        <source>背光开/关</source>
        <translation>Backlight on/off</translation>
    </message>
    <message>
        <source>背光灯效循环</source>
        <translation>Cycle backlight effects</translation>
    </message>
    <message>
        <source>背光灯效+</source>
        <translation>Backlight effect&#xa0;+</translation>
    </message>
    <message>
        <source>背光灯效-</source>
        <translation>Backlight effect&#xa0;−</translation>
    </message>
    <message>
        <source>背光亮度循环</source>
        <translation>Cycle backlight brightness</translation>
    </message>
    <message>
        <source>背光亮度+</source>
        <translation>Backlight brightness&#xa0;+</translation>
    </message>
    <message>
        <source>背光亮度-</source>
        <translation>Backlight brightness&#xa0;−</translation>
    </message>
    <message>
        <source>背光速度循环</source>
        <translation>Cycle backlight speed</translation>
    </message>
    <message>
        <source>背光速度-</source>
        <translation>Backlight speed&#xa0;−</translation>
    </message>
    <message>
        <source>背光速度+</source>
        <translation>Backlight speed&#xa0;+</translation>
    </message>
    <message>
        <source>背光方向循环</source>
        <translation>Cycle backlight direction</translation>
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
        <translation>Cycle backlight colors</translation>
    </message>
    <message>
        <source>背光颜色+</source>
        <translation>Backlight color&#xa0;+</translation>
    </message>
    <message>
        <source>背光颜色-</source>
        <translation>Backlight color&#xa0;−</translation>
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
        <translation>Cycle side light brightness</translation>
    </message>
    <message>
        <source>侧光速度循环</source>
        <translation>Cycle side light speed</translation>
    </message>
    <message>
        <source>侧光速度+</source>
        <translation>Side light speed&#xa0;+</translation>
    </message>
    <message>
        <source>侧光速度-</source>
        <translation>Side light speed&#xa0;−</translation>
    </message>
    <message>
        <source>侧光颜色循环</source>
        <translation>Cycle side light colors</translation>
    </message>
    <message>
        <source>侧光颜色+</source>
        <translation>Side light color&#xa0;+</translation>
    </message>
    <message>
        <source>侧光颜色-</source>
        <translation>Side light color&#xa0;−</translation>
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
        <translation>Macros</translation>
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
    <name>ModuleLinear</name>
    <message>
        <source>按下(mm)</source>
        <translation>Actuation (mm)</translation>
    </message>
    <message>
        <source>抬起(mm)</source>
        <translation>Release (mm)</translation>
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
        <translation>Select a key above and give it two functions: one for a tap and one for holding it (key combinations work too)</translation>
    </message>
    <message>
        <source>单击</source>
        <translation>Tap</translation>
    </message>
    <message>
        <source>按住</source>
        <translation>Hold</translation>
    </message>
    <message>
        <source>调整触发“按住&quot;键所需的时间</source>
        <translation>How long a key must be held to trigger “Hold”</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>按住超过这段时间才执行“按住”的功能</source>
        <translation>A key held longer than this does its “Hold” function</translation>
    </message>
</context>
<context>
    <name>ModuleMacroManager</name>
    <message>
        <source>新建宏</source>
        <translation>New macro </translation>
    </message>
</context>
<context>
    <name>ModuleRtSet</name>
    <message>
        <source>RT行程设置(全局)</source>
        <translation>RT sensitivity (global)</translation>
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
    <name>ModuleSnapTab</name>
    <message>
        <source>绑定2个选定按键(分别从上面选择)，当两个按键被同时按下时，以最后按下的按键为准</source>
        <translation>Binds two keys (choose each one above): while both are held, the key pressed last wins (SOCD)</translation>
    </message>
    <message>
        <source>选择A键</source>
        <translation>Choose key A</translation>
    </message>
    <message>
        <source>选择B键</source>
        <translation>Choose key B</translation>
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
        <translation>Select a key above and set its function in one of two trigger modes, repeat or hold</translation>
    </message>
    <message>
        <source>连点</source>
        <translation>Repeat</translation>
    </message>
    <message>
        <source>长按</source>
        <translation>Hold</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>未设置功能</source>
        <translation>Not set</translation>
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
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Select All</source>
        <translation>&amp;Select all</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>Step &amp;up</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>Step &amp;down</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Undo</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Redo</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Cu&amp;t</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copy</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Paste</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Select all</translation>
    </message>
</context>
<context>
    <name>ShellNotices</name>
    <message>
        <source>重试</source>
        <translation>Retry</translation>
    </message>
</context>
<context>
    <name>StabilityPage</name>
    <message>
        <source>RT Stab(RT 增稳算法)</source>
        <translation>RT Stab (RT stabilization)</translation>
    </message>
    <message>
        <source>RT Stab打开后，算法会介入增强轴体底部的稳定性。介入百分比越大，稳定性越强，延迟也会有所增加。</source>
        <translation>With RT Stab on, the firmware steadies the bottom of the travel. A higher percentage is steadier and adds a little latency.</translation>
    </message>
    <message>
        <source>0%(关闭)</source>
        <translation>0% (off)</translation>
    </message>
    <message>
        <source>防误触模式</source>
        <translation>Accidental press protection</translation>
    </message>
    <message>
        <source>(已关闭)</source>
        <translation>(Off)</translation>
    </message>
    <message>
        <source>防止极限性能下桌面抖动误触发或轴体公差可能造成还有0.1mm的行程公差。开启后优化底部按键算法补足行程差值提高键盘稳定性。</source>
        <translation>Keeps a shaking desk from triggering keys at extreme settings, and makes up for switch tolerances of up to 0.1 mm. When on, the algorithm at the bottom of the travel is tuned for a steadier keyboard.</translation>
    </message>
    <message>
        <source>已开启</source>
        <translation>On</translation>
    </message>
    <message>
        <source>已关闭</source>
        <translation>Off</translation>
    </message>
</context>
<context>
    <name>SwitchTypePage</name>
    <message>
        <source>轴体设置</source>
        <translation>Switch type</translation>
    </message>
    <message>
        <source>更换键盘轴体后，选择对应轴体的按键，点击下方对应的轴体选项进行设置来区分不同轴体</source>
        <translation>After swapping switches, choose the matching switch below and click the keys that hold it, so that the keyboard can tell them apart</translation>
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
        <translation>Toggle</translation>
    </message>
</context>
<context>
    <name>TravelPage</name>
    <message>
        <source>单独设置按下抬起触发行程：</source>
        <translation>Set actuation and release separately:</translation>
    </message>
    <message>
        <source>全程连续快速触发（RT）</source>
        <translation>Continuous Rapid Trigger (RT)</translation>
    </message>
    <message>
        <source>启用时，快速触发在您完全松开按键时才会终止。
禁用时，松开按键到轴体触发行程后终止快速触发</source>
        <translation>On: Rapid Trigger ends only when you release the key completely.
Off: Rapid Trigger ends when the key rises past its actuation point</translation>
    </message>
    <message>
        <source>单独设置按键再次按下触发和松开重置行程</source>
        <translation>Set RT press and release travel separately</translation>
    </message>
    <message>
        <source>再次按下按键触发所需的行程(mm)</source>
        <translation>Press travel to re-trigger (mm)</translation>
    </message>
    <message>
        <source>松开按键重置所需的行程(mm)</source>
        <translation>Release travel to reset (mm)</translation>
    </message>
    <message>
        <source>设置</source>
        <translation>Apply</translation>
    </message>
    <message>
        <source>抬起后再按下这段距离即再次触发，越小越灵敏</source>
        <translation>A press by this distance actuates again, wherever the key is; smaller is more sensitive</translation>
    </message>
    <message>
        <source>按下后抬起这段距离即释放，越小越灵敏</source>
        <translation>A lift by this distance resets the key, wherever it is; smaller is more sensitive</translation>
    </message>
    <message>
        <source>按键按到多深时触发</source>
        <translation>How far down a key goes before it actuates</translation>
    </message>
    <message>
        <source>按键抬到多高时释放</source>
        <translation>How far up a key comes before it resets</translation>
    </message>
</context>
<context>
    <name>TravelRuler</name>
    <message>
        <source>行程测试</source>
        <translation>Travel test</translation>
    </message>
</context>
<context>
    <name>WorkMeter</name>
    <message>
        <source>正在读取键盘</source>
        <translation>Reading keyboard</translation>
    </message>
    <message>
        <source>正在写入键盘</source>
        <translation>Writing to keyboard</translation>
    </message>
</context>
</TS>
