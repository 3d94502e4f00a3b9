<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR" sourcelanguage="zh_CN">
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
        <translation>명령,데이터 길이,Byte0
명령 번호(Hex),Byte1
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
        <translation>탭</translation>
    </message>
</context>
<context>
    <name>CustumSlider</name>
    <message>
        <source>滑块</source>
        <translation>슬라이더</translation>
    </message>
</context>
<context>
    <name>DemoDesk</name>
    <message>
        <source>虚拟设备</source>
        <translation>가상 장치</translation>
    </message>
    <message>
        <source>插入或拔出虚拟设备：</source>
        <translation>가상 장치 연결 또는 분리:</translation>
    </message>
</context>
<context>
    <name>DialogDeviceConnect</name>
    <message>
        <source>Orbe Studio 设备调试</source>
        <translation>Orbe Studio 장치 디버깅</translation>
    </message>
    <message>
        <source>命令目录</source>
        <translation>명령 목록</translation>
    </message>
</context>
<context>
    <name>FrameAbout</name>
    <message>
        <source>关于</source>
        <translation>정보</translation>
    </message>
    <message>
        <source>设备名称：Orbe 7090</source>
        <translation>장치 이름: Orbe 7090</translation>
    </message>
    <message>
        <source>键盘固件版本：V1.0</source>
        <translation>키보드 펌웨어 버전: V1.0</translation>
    </message>
    <message>
        <source>无线连接器固件版本：V1.0</source>
        <translation>무선 수신기 펌웨어 버전: V1.0</translation>
    </message>
    <message>
        <source>当前版本：V1.0</source>
        <translation>현재 버전: V1.0</translation>
    </message>
    <message>
        <source>检查键盘固件更新</source>
        <translation>키보드 펌웨어 업데이트 확인</translation>
    </message>
    <message>
        <source>检查无线连接器固件更新</source>
        <translation>무선 수신기 펌웨어 업데이트 확인</translation>
    </message>
    <message>
        <source>操作教学</source>
        <translation>사용 방법</translation>
    </message>
    <message>
        <source>关于Orbe</source>
        <translation>Orbe 정보</translation>
    </message>
</context>
<context>
    <name>FrameDeviceHolder</name>
    <message>
        <source>首页</source>
        <translation>홈</translation>
    </message>
    <message>
        <source>键盘设置</source>
        <translation>키 설정</translation>
    </message>
    <message>
        <source>磁轴设置</source>
        <translation>자석축 설정</translation>
    </message>
    <message>
        <source>宏设置</source>
        <translation>매크로 설정</translation>
    </message>
    <message>
        <source>灯效设置</source>
        <translation>조명 설정</translation>
    </message>
    <message>
        <source>关于</source>
        <translation>정보</translation>
    </message>
    <message>
        <source>用户</source>
        <translation>사용자</translation>
    </message>
    <message>
        <source>返回</source>
        <translation>뒤로</translation>
    </message>
    <message>
        <source>板载 1</source>
        <translation>온보드 1</translation>
    </message>
    <message>
        <source>板载 2</source>
        <translation>온보드 2</translation>
    </message>
    <message>
        <source>板载 3</source>
        <translation>온보드 3</translation>
    </message>
    <message>
        <source>板载 4</source>
        <translation>온보드 4</translation>
    </message>
    <message>
        <source>对码</source>
        <translation>페어링</translation>
    </message>
    <message>
        <source>恢复默认</source>
        <translation>기본값 복원</translation>
    </message>
    <message>
        <source>行程校准</source>
        <translation>키 트래블 보정</translation>
    </message>
    <message>
        <source>灯光设置</source>
        <translation>라이트 설정</translation>
    </message>
</context>
<context>
    <name>FrameDeviceShow</name>
    <message>
        <source>剩余电量</source>
        <translation>배터리 잔량</translation>
    </message>
</context>
<context>
    <name>FrameSystemInfo</name>
    <message>
        <source>系统设置</source>
        <translation>시스템 설정</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>开机时自动开启本程序</source>
        <translation>부팅 시 이 프로그램 자동 실행</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>취소</translation>
    </message>
</context>
<context>
    <name>HubTray</name>
    <message>
        <source>显示窗口</source>
        <translation>창 표시</translation>
    </message>
    <message>
        <source>隐藏窗口</source>
        <translation>창 숨기기</translation>
    </message>
    <message>
        <source>退出程序</source>
        <translation>프로그램 종료</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>语言</source>
        <translation>언어</translation>
    </message>
    <message>
        <source>系统设置</source>
        <translation>시스템 설정</translation>
    </message>
    <message>
        <source>最小化</source>
        <translation>최소화</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>끄기</translation>
    </message>
    <message>
        <source>搜索设备</source>
        <translation>장치 검색</translation>
    </message>
    <message>
        <source>我的设备</source>
        <translation>내 장치</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>알림</translation>
    </message>
    <message>
        <source>确定要退出 ORBE 驱动程序？</source>
        <translation>ORBE 드라이버를 종료하시겠습니까?</translation>
    </message>
    <message>
        <source>正在搜索设备</source>
        <translation>장치 검색 중</translation>
    </message>
    <message>
        <source>向左滚动</source>
        <translation>왼쪽으로 스크롤</translation>
    </message>
    <message>
        <source>向右滚动</source>
        <translation>오른쪽으로 스크롤</translation>
    </message>
    <message>
        <source>返回</source>
        <translation>뒤로</translation>
    </message>
</context>
<context>
    <name>ModuleGenKeymapping</name>
    <message>
        <source>上一曲</source>
        <translation>이전 곡</translation>
    </message>
    <message>
        <source>下一曲</source>
        <translation>다음 곡</translation>
    </message>
    <message>
        <source>播放/暂停</source>
        <translation>재생/일시정지</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>정지</translation>
    </message>
    <message>
        <source>静音</source>
        <translation>음소거</translation>
    </message>
    <message>
        <source>音量+</source>
        <translation>볼륨+</translation>
    </message>
    <message>
        <source>音量-</source>
        <translation>볼륨-</translation>
    </message>
    <message>
        <source>播放器</source>
        <translation>미디어 플레이어</translation>
    </message>
    <message>
        <source>计算器</source>
        <translation>계산기</translation>
    </message>
    <message>
        <source>邮件</source>
        <translation>메일</translation>
    </message>
    <message>
        <source>我的电脑</source>
        <translation>내 컴퓨터</translation>
    </message>
    <message>
        <source>搜索</source>
        <translation>검색</translation>
    </message>
    <message>
        <source>主页</source>
        <translation>홈페이지</translation>
    </message>
    <message>
        <source>后退</source>
        <translation>뒤로</translation>
    </message>
    <message>
        <source>前进</source>
        <translation>앞으로</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>새로 고침</translation>
    </message>
    <message>
        <source>收藏</source>
        <translation>즐겨찾기</translation>
    </message>
    <message>
        <source>亮度+</source>
        <translation>화면 밝기+</translation>
    </message>
    <message>
        <source>亮度-</source>
        <translation>화면 밝기-</translation>
    </message>
    <message>
        <source>放大</source>
        <translation>확대</translation>
    </message>
    <message>
        <source>缩小</source>
        <translation>축소</translation>
    </message>
    <message>
        <source>呼出Siri</source>
        <translation>Siri 호출</translation>
    </message>
    <message>
        <source>切换输入法</source>
        <translation>입력기 전환</translation>
    </message>
    <message>
        <source>返回</source>
        <translation>뒤로</translation>
    </message>
    <message>
        <source>Fn键锁屏</source>
        <translation>Fn 잠금</translation>
    </message>
    <message>
        <source>锁屏</source>
        <translation>화면 잠금</translation>
    </message>
    <message>
        <source>R-Fn键</source>
        <translation>R-Fn 키</translation>
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
        <translation>전원</translation>
    </message>
    <message>
        <source>睡眠</source>
        <translation>절전</translation>
    </message>
    <message>
        <source>唤醒</source>
        <translation>절전 해제</translation>
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
        <translation>L-Fn 키</translation>
    </message>
    <message>
        <source>恢复出厂设置</source>
        <translation>공장 초기화</translation>
    </message>
    <message>
        <source>锁Win</source>
        <translation>Win 잠금</translation>
    </message>
    <message>
        <source>切换Win</source>
        <translation>Win으로 전환</translation>
    </message>
    <message>
        <source>切换Mac</source>
        <translation>Mac으로 전환</translation>
    </message>
    <message>
        <source>系统切换</source>
        <translation>시스템 전환</translation>
    </message>
    <message>
        <source>Check Battery</source>
        <translation>배터리 확인</translation>
    </message>
    <message>
        <source>WASD切换</source>
        <translation>WASD 전환</translation>
    </message>
    <message>
        <source>Fn层切换</source>
        <translation>Fn 레이어 전환</translation>
    </message>
    <message>
        <source>设备节能</source>
        <translation>절전 모드</translation>
    </message>
    <message>
        <source>APP CTRL切换</source>
        <translation>APP CTRL 전환</translation>
    </message>
    <message>
        <source>背光开/关</source>
        <translation>백라이트 켜기/끄기</translation>
    </message>
    <message>
        <source>背光灯效循环</source>
        <translation>백라이트 효과 순환</translation>
    </message>
    <message>
        <source>背光灯效+</source>
        <translation>백라이트 효과+</translation>
    </message>
    <message>
        <source>背光灯效-</source>
        <translation>백라이트 효과-</translation>
    </message>
    <message>
        <source>背光亮度循环</source>
        <translation>백라이트 밝기 순환</translation>
    </message>
    <message>
        <source>背光亮度+</source>
        <translation>백라이트 밝기+</translation>
    </message>
    <message>
        <source>背光亮度-</source>
        <translation>백라이트 밝기-</translation>
    </message>
    <message>
        <source>背光速度循环</source>
        <translation>백라이트 속도 순환</translation>
    </message>
    <message>
        <source>背光速度-</source>
        <translation>백라이트 속도-</translation>
    </message>
    <message>
        <source>背光速度+</source>
        <translation>백라이트 속도+</translation>
    </message>
    <message>
        <source>背光方向循环</source>
        <translation>백라이트 방향 순환</translation>
    </message>
    <message>
        <source>背光向左</source>
        <translation>백라이트 왼쪽</translation>
    </message>
    <message>
        <source>背光向右</source>
        <translation>백라이트 오른쪽</translation>
    </message>
    <message>
        <source>背光颜色循环</source>
        <translation>백라이트 색상 순환</translation>
    </message>
    <message>
        <source>背光颜色+</source>
        <translation>백라이트 색상+</translation>
    </message>
    <message>
        <source>背光颜色-</source>
        <translation>백라이트 색상-</translation>
    </message>
    <message>
        <source>Use Pic 0</source>
        <translation>그림 0 사용</translation>
    </message>
    <message>
        <source>Use Pic 1</source>
        <translation>그림 1 사용</translation>
    </message>
    <message>
        <source>Use Pic 2</source>
        <translation>그림 2 사용</translation>
    </message>
    <message>
        <source>Use Pic 3</source>
        <translation>그림 3 사용</translation>
    </message>
    <message>
        <source>Use Pic 4</source>
        <translation>그림 4 사용</translation>
    </message>
    <message>
        <source>Use Pic</source>
        <translation>그림 사용</translation>
    </message>
    <message>
        <source>侧光开/关</source>
        <translation>사이드 라이트 켜기/끄기</translation>
    </message>
    <message>
        <source>侧光亮度循环</source>
        <translation>사이드 라이트 밝기 순환</translation>
    </message>
    <message>
        <source>侧光速度循环</source>
        <translation>사이드 라이트 속도 순환</translation>
    </message>
    <message>
        <source>侧光速度+</source>
        <translation>사이드 라이트 속도+</translation>
    </message>
    <message>
        <source>侧光速度-</source>
        <translation>사이드 라이트 속도-</translation>
    </message>
    <message>
        <source>侧光颜色循环</source>
        <translation>사이드 라이트 색상 순환</translation>
    </message>
    <message>
        <source>侧光颜色+</source>
        <translation>사이드 라이트 색상+</translation>
    </message>
    <message>
        <source>侧光颜色-</source>
        <translation>사이드 라이트 색상-</translation>
    </message>
    <message>
        <source>2.4G</source>
        <translation>2.4G</translation>
    </message>
    <message>
        <source>蓝牙1</source>
        <translation>블루투스 1</translation>
    </message>
    <message>
        <source>蓝牙2</source>
        <translation>블루투스 2</translation>
    </message>
    <message>
        <source>蓝牙3</source>
        <translation>블루투스 3</translation>
    </message>
    <message>
        <source>有线</source>
        <translation>유선</translation>
    </message>
    <message>
        <source>有线-蓝牙-2.4G</source>
        <translation>유선-블루투스-2.4G</translation>
    </message>
    <message>
        <source>2.4G配对</source>
        <translation>2.4G 페어링</translation>
    </message>
    <message>
        <source>蓝牙配对</source>
        <translation>블루투스 페어링</translation>
    </message>
    <message>
        <source>Insert键</source>
        <translation>Insert 키</translation>
    </message>
    <message>
        <source>Print Screen键</source>
        <translation>Print Screen 키</translation>
    </message>
    <message>
        <source>左键单击</source>
        <translation>왼쪽 클릭</translation>
    </message>
    <message>
        <source>右键单击</source>
        <translation>오른쪽 클릭</translation>
    </message>
    <message>
        <source>中键按下</source>
        <translation>가운데 클릭</translation>
    </message>
    <message>
        <source>光标前进</source>
        <translation>마우스 앞으로</translation>
    </message>
    <message>
        <source>光标后退</source>
        <translation>마우스 뒤로</translation>
    </message>
    <message>
        <source>滚轮-向左</source>
        <translation>휠 왼쪽</translation>
    </message>
    <message>
        <source>滚轮-向右</source>
        <translation>휠 오른쪽</translation>
    </message>
    <message>
        <source>滚轮-向上</source>
        <translation>휠 위로</translation>
    </message>
    <message>
        <source>滚轮-向下</source>
        <translation>휠 아래로</translation>
    </message>
    <message>
        <source>向上滚屏</source>
        <translation>위로 스크롤</translation>
    </message>
    <message>
        <source>向下滚屏</source>
        <translation>아래로 스크롤</translation>
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
        <translation>매크로 설정</translation>
    </message>
    <message>
        <source>功能</source>
        <translation>기능</translation>
    </message>
    <message>
        <source>鼠标</source>
        <translation>마우스</translation>
    </message>
    <message>
        <source>组合</source>
        <translation>조합</translation>
    </message>
</context>
<context>
    <name>ModuleGeneralMasker</name>
    <message>
        <source>对话框</source>
        <translation>대화 상자</translation>
    </message>
</context>
<context>
    <name>ModuleKeyboard</name>
    <message>
        <source>屏幕键盘</source>
        <translation>화상 키보드</translation>
    </message>
    <message>
        <source>已选中按键</source>
        <translation>선택한 키</translation>
    </message>
    <message>
        <source>已修改按键</source>
        <translation>변경한 키</translation>
    </message>
    <message>
        <source>已禁用按键</source>
        <translation>비활성 키</translation>
    </message>
    <message>
        <source>取消禁用</source>
        <translation>비활성화 해제</translation>
    </message>
    <message>
        <source>清除设置</source>
        <translation>설정 지우기</translation>
    </message>
    <message>
        <source>禁用按键</source>
        <translation>키 비활성화</translation>
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
        <translation>값 휠</translation>
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
        <translation>Orbe 7090 사용 안내: 매크로 설정</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>&amp;Yes</source>
        <translation>예(&amp;Y)</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>아니요(&amp;N)</translation>
    </message>
</context>
<context>
    <name>ToggleButton</name>
    <message>
        <source>开关</source>
        <translation>스위치</translation>
    </message>
</context>
</TS>
