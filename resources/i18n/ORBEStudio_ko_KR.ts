<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR" sourcelanguage="zh_CN">
<context>
    <name>ColorSlider</name>
    <message>
        <source>色相</source>
        <translation>색조</translation>
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
    <name>DeadZonePage</name>
    <message>
        <source>死区设置</source>
        <translation>데드존 설정</translation>
    </message>
    <message>
        <source>按键死区设定</source>
        <translation>키 데드존 설정</translation>
    </message>
    <message>
        <source>触底到抬起前的距离俗称“死区”。死区可减少磁轴因环境干扰带来的断触问题，磁轴的底部可自定义，您可根据个人需求自定义死区，设定之后，此段行程不会触发。</source>
        <translation>바닥을 친 뒤 다시 올라오기 전까지의 거리를 “데드존”이라고 합니다. 데드존은 주변 간섭으로 자석축 입력이 끊기는 현상을 줄여 줍니다. 필요에 맞게 설정할 수 있으며, 이 구간에서는 입력이 발생하지 않습니다.</translation>
    </message>
    <message>
        <source>设置</source>
        <translation>적용</translation>
    </message>
    <message>
        <source>顶部死区</source>
        <translation>상단 데드존</translation>
    </message>
    <message>
        <source>底部死区</source>
        <translation>하단 데드존</translation>
    </message>
    <message>
        <source>按键顶部不触发的距离，可防误触</source>
        <translation>윗부분의 반응하지 않는 구간으로, 오입력을 막습니다</translation>
    </message>
    <message>
        <source>按键底部不响应的距离，可防抖动</source>
        <translation>아랫부분의 반응하지 않는 구간으로, 끝까지 누를 때의 떨림을 막습니다</translation>
    </message>
</context>
<context>
    <name>DemoBoard</name>
    <message>
        <source>没有插入键盘</source>
        <translation>연결된 키보드 없음</translation>
    </message>
    <message>
        <source>虚拟键盘的灯光</source>
        <translation>가상 키보드 조명</translation>
    </message>
    <message>
        <source>虚拟键盘</source>
        <translation>가상 키보드</translation>
    </message>
    <message>
        <source>单击按键即可按下它，部分灯效会作出反应。</source>
        <translation>키를 클릭하면 눌리며, 일부 효과는 반응합니다.</translation>
    </message>
    <message>
        <source>灯光已关闭</source>
        <translation>조명 꺼짐</translation>
    </message>
    <message>
        <source>%1 · 亮度 %2% · 速度 %3%</source>
        <translation>%1 · 밝기 %2% · 속도 %3%</translation>
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
    <message>
        <source>依次按下所有按键</source>
        <translation>모든 키를 차례로 누르기</translation>
    </message>
    <message>
        <source>显示键盘的灯光</source>
        <translation>키보드 조명 표시</translation>
    </message>
</context>
<context>
    <name>DeviceOptionsPanel</name>
    <message>
        <source>键盘回报率</source>
        <translation>폴링 레이트</translation>
    </message>
    <message>
        <source>2.4G关闭背光</source>
        <translation>2.4G 백라이트 끄기</translation>
    </message>
    <message>
        <source>蓝牙关闭背光</source>
        <translation>블루투스 백라이트 끄기</translation>
    </message>
    <message>
        <source>2.4G深度睡眠时间</source>
        <translation>2.4G 깊은 절전 시간</translation>
    </message>
    <message>
        <source>分钟</source>
        <translation>분</translation>
    </message>
    <message>
        <source>蓝牙深度睡眠时间</source>
        <translation>블루투스 깊은 절전 시간</translation>
    </message>
    <message>
        <source>按键防抖等级设置</source>
        <translation>디바운스 단계</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1분</translation>
    </message>
    <message>
        <source>键盘每秒向电脑报告的次数，越高延迟越低</source>
        <translation>키보드가 1초에 PC로 보고하는 횟수입니다. 높을수록 지연이 줄어듭니다</translation>
    </message>
    <message>
        <source>不按键多久后关闭背光</source>
        <translation>키 입력이 없을 때 백라이트가 꺼지기까지의 시간</translation>
    </message>
    <message>
        <source>不按键多久后进入深度睡眠，可省电</source>
        <translation>키 입력이 없을 때 깊은 절전에 들어가기까지의 시간입니다. 배터리를 아낍니다</translation>
    </message>
    <message>
        <source>级别越高越能避免连击，但会增加延迟</source>
        <translation>높을수록 중복 입력을 잘 막지만 지연이 늘어납니다</translation>
    </message>
</context>
<context>
    <name>DeviceTrouble</name>
    <message>
        <source>系统不允许访问此键盘。请将 70-orbehub.rules 复制到 /etc/udev/rules.d，然后重新插拔键盘。</source>
        <translation>시스템이 이 키보드에 대한 접근을 허용하지 않습니다. 70-orbehub.rules를 /etc/udev/rules.d에 복사한 후 키보드를 다시 연결하세요.</translation>
    </message>
    <message>
        <source>系统不允许访问此键盘。请检查您的用户权限，然后重新插拔键盘。</source>
        <translation>시스템이 이 키보드에 대한 접근을 허용하지 않습니다. 사용자 권한을 확인한 후 키보드를 다시 연결하세요.</translation>
    </message>
    <message>
        <source>已断开</source>
        <translation>연결 끊김</translation>
    </message>
    <message>
        <source>键盘已断开，重新连接后即可使用。</source>
        <translation>키보드 연결이 끊겼습니다. 다시 연결하면 사용할 수 있습니다.</translation>
    </message>
    <message>
        <source>没有响应</source>
        <translation>응답 없음</translation>
    </message>
    <message>
        <source>键盘没有响应，可能处于休眠状态，请按任意键唤醒。</source>
        <translation>키보드가 응답하지 않습니다. 절전 상태일 수 있으니 아무 키나 눌러 깨우세요.</translation>
    </message>
    <message>
        <source>没有访问权限</source>
        <translation>접근 권한 없음</translation>
    </message>
    <message>
        <source>无法打开</source>
        <translation>열 수 없음</translation>
    </message>
    <message>
        <source>无法打开键盘，可能正被其他程序占用。请关闭该程序后重新插拔键盘。</source>
        <translation>키보드를 열 수 없습니다. 다른 프로그램이 사용 중일 수 있습니다. 해당 프로그램을 닫고 키보드를 다시 연결하세요.</translation>
    </message>
    <message>
        <source>键盘</source>
        <translation>키보드</translation>
    </message>
</context>
<context>
    <name>DialogColorPicker</name>
    <message>
        <source>取色器</source>
        <translation>색상 선택기</translation>
    </message>
    <message>
        <source>按住并拖到屏幕上的任意位置取色</source>
        <translation>누른 채 화면의 원하는 곳으로 끌어 색을 가져오세요</translation>
    </message>
    <message>
        <source>完成</source>
        <translation>완료</translation>
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
    <name>DialogFNPicker</name>
    <message>
        <source>组合键</source>
        <translation>조합 키</translation>
    </message>
    <message>
        <source>基本字符</source>
        <translation>기본 키</translation>
    </message>
    <message>
        <source>拓展字符(按键)</source>
        <translation>확장 키</translation>
    </message>
    <message>
        <source>宏设置</source>
        <translation>매크로 설정</translation>
    </message>
    <message>
        <source>播放方式:</source>
        <translation>재생 방식:</translation>
    </message>
    <message>
        <source>循环次数</source>
        <translation>반복 횟수</translation>
    </message>
    <message>
        <source>自动</source>
        <translation>자동</translation>
    </message>
    <message>
        <source>按下</source>
        <translation>누름</translation>
    </message>
    <message>
        <source>系统功能</source>
        <translation>시스템 기능</translation>
    </message>
    <message>
        <source>鼠标功能</source>
        <translation>마우스 기능</translation>
    </message>
    <message>
        <source>设置功能为:</source>
        <translation>설정할 기능:</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>左键</source>
        <translation>왼쪽</translation>
    </message>
    <message>
        <source>右键</source>
        <translation>오른쪽</translation>
    </message>
    <message>
        <source>中键</source>
        <translation>가운데</translation>
    </message>
    <message>
        <source>前移</source>
        <translation>앞으로</translation>
    </message>
    <message>
        <source>后移</source>
        <translation>뒤로</translation>
    </message>
    <message>
        <source>左滚</source>
        <translation>휠 왼쪽</translation>
    </message>
    <message>
        <source>右滚</source>
        <translation>휠 오른쪽</translation>
    </message>
    <message>
        <source>上滚</source>
        <translation>휠 위로</translation>
    </message>
    <message>
        <source>下滚</source>
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
        <source>自定义按键</source>
        <translation>사용자 지정 키</translation>
    </message>
    <message>
        <source>宏</source>
        <translation>매크로 </translation>
    </message>
    <message>
        <source>未录制的宏</source>
        <translation>녹화되지 않은 매크로</translation>
    </message>
</context>
<context>
    <name>DialogVKPicker</name>
    <message>
        <source>基本字符</source>
        <translation>기본 키</translation>
    </message>
    <message>
        <source>拓展字符</source>
        <translation>확장 키</translation>
    </message>
    <message>
        <source>组合键：</source>
        <translation>조합 키:</translation>
    </message>
    <message>
        <source>确认</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>组合键</source>
        <translation>조합 키</translation>
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
        <translation>프로필 1</translation>
    </message>
    <message>
        <source>板载 2</source>
        <translation>프로필 2</translation>
    </message>
    <message>
        <source>板载 3</source>
        <translation>프로필 3</translation>
    </message>
    <message>
        <source>板载 4</source>
        <translation>프로필 4</translation>
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
    <name>FrameKeySetting</name>
    <message>
        <source>自定义</source>
        <translation>사용자 지정</translation>
    </message>
    <message>
        <source>高级键</source>
        <translation>고급 키</translation>
    </message>
    <message>
        <source>其他设置</source>
        <translation>기타 설정</translation>
    </message>
    <message>
        <source>Fn层设置</source>
        <translation>Fn 레이어 설정</translation>
    </message>
    <message>
        <source>自定义/Fn层设置</source>
        <translation>사용자 지정/Fn 레이어 설정</translation>
    </message>
    <message>
        <source>*首先点击选择上方按键，在弹出的对话框中可选择组合键、宏设置、系统功能、鼠标功能进行改建设置</source>
        <translation>*먼저 위의 키를 클릭한 다음 대화 상자에서 조합 키, 매크로, 시스템 기능, 마우스 기능을 골라 다시 지정하세요</translation>
    </message>
    <message>
        <source>*右键点击按键可清除设置、禁用按键或取消禁用</source>
        <translation>*키를 마우스 오른쪽 버튼으로 클릭하면 설정 지우기, 비활성화, 비활성화 해제를 할 수 있습니다</translation>
    </message>
    <message>
        <source>动态键程(DKS)</source>
        <translation>다이내믹 키스트로크(DKS)</translation>
    </message>
    <message>
        <source>按住/单击(MT)</source>
        <translation>모드 탭(MT)</translation>
    </message>
    <message>
        <source>切换开关(TGL)</source>
        <translation>토글(TGL)</translation>
    </message>
    <message>
        <source>Fn层按键设置</source>
        <translation>Fn 레이어 키 설정</translation>
    </message>
    <message>
        <source>自定义按键</source>
        <translation>사용자 지정 키</translation>
    </message>
</context>
<context>
    <name>FrameLight</name>
    <message>
        <source>点击按键上色，拖动可给多个按键上色</source>
        <translation>키를 클릭해 색을 칠하고, 드래그해 여러 키를 한 번에 칠하세요</translation>
    </message>
    <message>
        <source>我的作品</source>
        <translation>내 작품</translation>
    </message>
    <message>
        <source>颜色:</source>
        <translation>색상:</translation>
    </message>
    <message>
        <source>取色器：</source>
        <translation>색상 선택기:</translation>
    </message>
    <message>
        <source>随机颜色：</source>
        <translation>무작위 색상:</translation>
    </message>
    <message>
        <source>清除设置</source>
        <translation>설정 지우기</translation>
    </message>
    <message>
        <source>写入层(图):</source>
        <translation>쓸 레이어:</translation>
    </message>
    <message>
        <source>图1</source>
        <translation>그림 1</translation>
    </message>
    <message>
        <source>图2</source>
        <translation>그림 2</translation>
    </message>
    <message>
        <source>图3</source>
        <translation>그림 3</translation>
    </message>
    <message>
        <source>图4</source>
        <translation>그림 4</translation>
    </message>
    <message>
        <source>图5</source>
        <translation>그림 5</translation>
    </message>
    <message>
        <source>读取层(图):</source>
        <translation>읽을 레이어:</translation>
    </message>
    <message>
        <source>作品名称:</source>
        <translation>작품 이름:</translation>
    </message>
    <message>
        <source>更新</source>
        <translation>업데이트</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>저장</translation>
    </message>
    <message>
        <source>还没有作品，给按键上色后点击“保存”</source>
        <translation>아직 작품이 없습니다. 키를 칠한 뒤 ‘저장’을 누르세요</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>알림</translation>
    </message>
    <message>
        <source>确认要删除此作品吗？</source>
        <translation>이 작품을 삭제하시겠습니까?</translation>
    </message>
    <message>
        <source>我的作品%1</source>
        <translation>내 작품 %1</translation>
    </message>
    <message>
        <source>作品已保存</source>
        <translation>작품을 저장했습니다</translation>
    </message>
    <message>
        <source>把现在的颜色写入键盘的这一层</source>
        <translation>지금 색을 키보드의 이 레이어에 저장합니다</translation>
    </message>
    <message>
        <source>显示键盘这一层里的颜色</source>
        <translation>키보드의 이 레이어에 있는 색을 보여 줍니다</translation>
    </message>
</context>
<context>
    <name>FrameMacro</name>
    <message>
        <source>宏设置</source>
        <translation>매크로 설정</translation>
    </message>
    <message>
        <source>抬起</source>
        <translation>뗌</translation>
    </message>
    <message>
        <source>按下</source>
        <translation>누름</translation>
    </message>
    <message>
        <source>延迟</source>
        <translation>지연</translation>
    </message>
    <message>
        <source>开始录制</source>
        <translation>녹화 시작</translation>
    </message>
    <message>
        <source>插入</source>
        <translation>삽입</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>삭제</translation>
    </message>
    <message>
        <source>清空</source>
        <translation>모두 지우기</translation>
    </message>
    <message>
        <source>设置固定延迟(ms):</source>
        <translation>고정 지연 설정(ms):</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>저장</translation>
    </message>
    <message>
        <source>新建宏</source>
        <translation>새 매크로</translation>
    </message>
    <message>
        <source>停止录制</source>
        <translation>녹화 중지</translation>
    </message>
    <message>
        <source>点击“开始录制”后按下按键，或点击“插入”添加事件</source>
        <translation>‘녹화 시작’을 누르고 키를 입력하거나 ‘삽입’으로 이벤트를 추가하세요</translation>
    </message>
    <message>
        <source>请在左侧选择一个宏</source>
        <translation>왼쪽에서 매크로를 선택하세요</translation>
    </message>
    <message>
        <source>占用</source>
        <translation>사용</translation>
    </message>
    <message>
        <source>字节</source>
        <translation>바이트</translation>
    </message>
    <message>
        <source>录制键盘和鼠标按键，再次点击结束</source>
        <translation>키와 마우스 버튼을 녹화합니다. 다시 누르면 끝납니다</translation>
    </message>
    <message>
        <source>把所有延迟都设为右侧的值</source>
        <translation>모든 지연을 오른쪽 값으로 맞춥니다</translation>
    </message>
</context>
<context>
    <name>FrameMagic</name>
    <message>
        <source>行程设置</source>
        <translation>액추에이션 설정</translation>
    </message>
    <message>
        <source>死区设置</source>
        <translation>데드존 설정</translation>
    </message>
    <message>
        <source>轴体设置</source>
        <translation>스위치 종류</translation>
    </message>
    <message>
        <source>增稳算法</source>
        <translation>안정화</translation>
    </message>
    <message>
        <source>模拟测试</source>
        <translation>테스트</translation>
    </message>
    <message>
        <source>已选中按键的数量</source>
        <translation>선택한 키 수</translation>
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
        <translation>기계식 스위치</translation>
    </message>
    <message>
        <source>凯华轴</source>
        <translation>Kailh 스위치</translation>
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
        <translation>로우 프로파일 자석축</translation>
    </message>
    <message>
        <source>星芒磁轴</source>
        <translation>Starburst</translation>
    </message>
    <message>
        <source>白泽轴</source>
        <translation>Baize 스위치</translation>
    </message>
    <message>
        <source>自定义</source>
        <translation>사용자 지정</translation>
    </message>
</context>
<context>
    <name>FrameMain</name>
    <message>
        <source>键程设置(全局)</source>
        <translation>액추에이션 포인트(전체)</translation>
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
    <name>KeyBubble</name>
    <message>
        <source>系统按键</source>
        <translation>시스템 키</translation>
    </message>
    <message>
        <source>动态键程</source>
        <translation>다이내믹 키스트로크</translation>
    </message>
    <message>
        <source>按住单击</source>
        <translation>모드 탭</translation>
    </message>
    <message>
        <source>切换开关</source>
        <translation>토글</translation>
    </message>
    <message>
        <source>宏设置</source>
        <translation>매크로 설정</translation>
    </message>
</context>
<context>
    <name>KeyTestPage</name>
    <message>
        <source>行程测试</source>
        <translation>트래블 테스트</translation>
    </message>
    <message>
        <source>按键测试</source>
        <translation>키 테스트</translation>
    </message>
    <message>
        <source>输入值</source>
        <translation>입력값</translation>
    </message>
    <message>
        <source>按下任意按键。无线连接下没有实时行程数据。</source>
        <translation>아무 키나 누르세요. 무선 연결에서는 실시간 키 트래블 데이터가 없습니다.</translation>
    </message>
</context>
<context>
    <name>LightWorksModel</name>
    <message>
        <source>删除</source>
        <translation>삭제</translation>
    </message>
    <message>
        <source>预览图,作品名称,管理</source>
        <translation>미리보기,작품 이름,관리</translation>
    </message>
</context>
<context>
    <name>LinearFixing1</name>
    <message>
        <source>行程校准操作指南</source>
        <translation>키 트래블 보정 안내</translation>
    </message>
    <message>
        <source>请依次将每个按键轻按到底并停留至少1秒钟，直到按键变为橙色（表示该按键校准成功），请勿遗漏，可重复按按键。无线下不支持按键校准个数提示。校准过程中请勿拔出数据线。</source>
        <translation>모든 키를 차례로 끝까지 가볍게 누른 뒤 주황색으로 바뀔 때까지(해당 키 보정 완료) 1초 이상 유지하세요. 빠뜨리지 마세요. 다시 눌러도 됩니다. 무선에서는 보정된 키 개수가 표시되지 않습니다. 보정 중에는 케이블을 뽑지 마세요.</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>开始校准</source>
        <translation>보정 시작</translation>
    </message>
</context>
<context>
    <name>LinearFixing2</name>
    <message>
        <source>行程校准</source>
        <translation>키 트래블 보정</translation>
    </message>
    <message>
        <source>请依次将每个按键轻按到底并停留至少1秒钟，直到按键变为橙色（表示该按键校准成功），请勿遗漏，可重复按按键。无线下不支持按键校准个数提示。校准过程中请勿拔出数据线。</source>
        <translation>모든 키를 차례로 끝까지 가볍게 누른 뒤 주황색으로 바뀔 때까지(해당 키 보정 완료) 1초 이상 유지하세요. 빠뜨리지 마세요. 다시 눌러도 됩니다. 무선에서는 보정된 키 개수가 표시되지 않습니다. 보정 중에는 케이블을 뽑지 마세요.</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>完成校准</source>
        <translation>보정 완료</translation>
    </message>
</context>
<context>
    <name>MacroItem</name>
    <message>
        <source>重命名</source>
        <translation>이름 변경</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>삭제</translation>
    </message>
</context>
<context>
    <name>MacroSquare</name>
    <message>
        <source>插入</source>
        <translation>삽입</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>삭제</translation>
    </message>
    <message>
        <source>延迟</source>
        <translation>지연</translation>
    </message>
    <message>
        <source>左键</source>
        <translation>왼쪽</translation>
    </message>
    <message>
        <source>右键</source>
        <translation>오른쪽</translation>
    </message>
    <message>
        <source>中键</source>
        <translation>가운데</translation>
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
        <translation>내 장치 </translation>
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
    <name>MessageBox</name>
    <message>
        <source>是</source>
        <translation>예</translation>
    </message>
    <message>
        <source>否</source>
        <translation>아니요</translation>
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
    <name>ModuleAddMacroSquare</name>
    <message>
        <source>请选择添加宏事件类型</source>
        <translation>추가할 매크로 이벤트 종류를 선택하세요</translation>
    </message>
    <message>
        <source>键盘按键</source>
        <translation>키보드 키</translation>
    </message>
    <message>
        <source>请按下按键......</source>
        <translation>키를 누르세요…</translation>
    </message>
    <message>
        <source>鼠标按键</source>
        <translation>마우스 버튼</translation>
    </message>
    <message>
        <source>左键</source>
        <translation>왼쪽</translation>
    </message>
    <message>
        <source>中键</source>
        <translation>가운데</translation>
    </message>
    <message>
        <source>右键</source>
        <translation>오른쪽</translation>
    </message>
    <message>
        <source>鼠标位置</source>
        <translation>마우스 위치</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>확인</translation>
    </message>
</context>
<context>
    <name>ModuleDKSAdjust</name>
    <message>
        <source>按下(mm)</source>
        <translation>누름(mm)</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>저장</translation>
    </message>
</context>
<context>
    <name>ModuleDKSItem</name>
    <message>
        <source>按下触发</source>
        <translation>액추에이션 통과</translation>
    </message>
    <message>
        <source>按到底部</source>
        <translation>끝까지 누름</translation>
    </message>
    <message>
        <source>离开底部</source>
        <translation>바닥에서 뗌</translation>
    </message>
    <message>
        <source>回到顶部</source>
        <translation>맨 위로 돌아옴</translation>
    </message>
    <message>
        <source>未设置功能</source>
        <translation>기능 없음</translation>
    </message>
    <message>
        <source>已开启</source>
        <translation>켜짐</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>끄기</translation>
    </message>
</context>
<context>
    <name>ModuleDKSTab</name>
    <message>
        <source>确定</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>按下触发</source>
        <translation>액추에이션 통과</translation>
    </message>
    <message>
        <source>按到底部</source>
        <translation>끝까지 누름</translation>
    </message>
    <message>
        <source>离开底部</source>
        <translation>바닥에서 뗌</translation>
    </message>
    <message>
        <source>回到顶部</source>
        <translation>맨 위로 돌아옴</translation>
    </message>
</context>
<context>
    <name>ModuleEfColor</name>
    <message>
        <source>系统默认</source>
        <translation>기본값</translation>
    </message>
    <message>
        <source>自定义</source>
        <translation>사용자 지정</translation>
    </message>
    <message>
        <source>单键</source>
        <translation>단일 키</translation>
    </message>
    <message>
        <source>灯带灯效设置</source>
        <translation>라이트 스트립</translation>
    </message>
    <message>
        <source>灯效：</source>
        <translation>효과:</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>끄기</translation>
    </message>
    <message>
        <source>常亮</source>
        <translation>항상 켜짐</translation>
    </message>
    <message>
        <source>呼吸</source>
        <translation>브리딩</translation>
    </message>
    <message>
        <source>川流不息</source>
        <translation>스트림</translation>
    </message>
    <message>
        <source>霓虹</source>
        <translation>네온</translation>
    </message>
    <message>
        <source>光波</source>
        <translation>빛 물결</translation>
    </message>
    <message>
        <source>色彩：</source>
        <translation>색상:</translation>
    </message>
    <message>
        <source>炫彩</source>
        <translation>RGB</translation>
    </message>
    <message>
        <source>亮度：</source>
        <translation>밝기:</translation>
    </message>
    <message>
        <source>速度：</source>
        <translation>속도:</translation>
    </message>
    <message>
        <source>颜色%1</source>
        <translation>색상 %1</translation>
    </message>
    <message>
        <source>取色器</source>
        <translation>색상 선택기</translation>
    </message>
</context>
<context>
    <name>ModuleEfLumi</name>
    <message>
        <source>灯光亮度</source>
        <translation>밝기</translation>
    </message>
</context>
<context>
    <name>ModuleEfMode</name>
    <message>
        <source>灯效模式</source>
        <translation>조명 모드</translation>
    </message>
    <message>
        <source>关灯</source>
        <translation>조명 끄기</translation>
    </message>
    <message>
        <source>灯光播放模式:</source>
        <translation>재생 모드:</translation>
    </message>
    <message>
        <source>常亮</source>
        <translation>항상 켜짐</translation>
    </message>
    <message>
        <source>呼吸</source>
        <translation>브리딩</translation>
    </message>
    <message>
        <source>流星</source>
        <translation>유성</translation>
    </message>
    <message>
        <source>涟漪</source>
        <translation>물결</translation>
    </message>
    <message>
        <source>极光</source>
        <translation>오로라</translation>
    </message>
    <message>
        <source>雨滴</source>
        <translation>빗방울</translation>
    </message>
    <message>
        <source>聚合</source>
        <translation>집중</translation>
    </message>
    <message>
        <source>川流不息</source>
        <translation>스트림</translation>
    </message>
    <message>
        <source>霓虹</source>
        <translation>네온</translation>
    </message>
    <message>
        <source>光波</source>
        <translation>빛 물결</translation>
    </message>
    <message>
        <source>繁星点点</source>
        <translation>별 무리</translation>
    </message>
    <message>
        <source>如影随形</source>
        <translation>그림자</translation>
    </message>
    <message>
        <source>正弦波</source>
        <translation>사인파</translation>
    </message>
    <message>
        <source>彩泉涌动</source>
        <translation>컬러 분수</translation>
    </message>
    <message>
        <source>百花争艳</source>
        <translation>만개</translation>
    </message>
    <message>
        <source>一石二鸟</source>
        <translation>일석이조</translation>
    </message>
    <message>
        <source>峰回路转</source>
        <translation>굽이길</translation>
    </message>
    <message>
        <source>斜风细雨</source>
        <translation>가랑비</translation>
    </message>
    <message>
        <source>踏雪无痕</source>
        <translation>눈길</translation>
    </message>
    <message>
        <source>层出不穷</source>
        <translation>겹겹이</translation>
    </message>
    <message>
        <source>光影</source>
        <translation>빛과 그림자</translation>
    </message>
    <message>
        <source>音乐律动</source>
        <translation>음악 리듬</translation>
    </message>
    <message>
        <source>自定义</source>
        <translation>사용자 지정</translation>
    </message>
    <message>
        <source>左</source>
        <translation>왼쪽</translation>
    </message>
    <message>
        <source>右</source>
        <translation>오른쪽</translation>
    </message>
    <message>
        <source>上</source>
        <translation>위</translation>
    </message>
    <message>
        <source>下</source>
        <translation>아래</translation>
    </message>
    <message>
        <source>Z形</source>
        <translation>Z자형</translation>
    </message>
    <message>
        <source>回形</source>
        <translation>나선형</translation>
    </message>
    <message>
        <source>向内</source>
        <translation>안쪽으로</translation>
    </message>
    <message>
        <source>向外</source>
        <translation>바깥으로</translation>
    </message>
    <message>
        <source>向右</source>
        <translation>오른쪽으로</translation>
    </message>
    <message>
        <source>向左</source>
        <translation>왼쪽으로</translation>
    </message>
    <message>
        <source>图案1</source>
        <translation>그림 1</translation>
    </message>
    <message>
        <source>图案2</source>
        <translation>그림 2</translation>
    </message>
    <message>
        <source>图案3</source>
        <translation>그림 3</translation>
    </message>
    <message>
        <source>图案4</source>
        <translation>그림 4</translation>
    </message>
    <message>
        <source>图案5</source>
        <translation>그림 5</translation>
    </message>
    <message>
        <source>顺时针</source>
        <translation>시계 방향</translation>
    </message>
    <message>
        <source>逆时针</source>
        <translation>반시계 방향</translation>
    </message>
    <message>
        <source>无</source>
        <translation>없음</translation>
    </message>
</context>
<context>
    <name>ModuleEfSpeed</name>
    <message>
        <source>灯光速度</source>
        <translation>속도</translation>
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
        <translation>내 PC</translation>
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
        <translation>DPI 순환</translation>
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
        <translation>프로필 값</translation>
    </message>
    <message>
        <source>Profile+</source>
        <translation>프로필+</translation>
    </message>
    <message>
        <source>Profile-</source>
        <translation>프로필-</translation>
    </message>
    <message>
        <source>Profile-Loop</source>
        <translation>프로필 순환</translation>
    </message>
    <message>
        <source>Profile-1</source>
        <translation>프로필 1</translation>
    </message>
    <message>
        <source>Profile-2</source>
        <translation>프로필 2</translation>
    </message>
    <message>
        <source>Profile-3</source>
        <translation>프로필 3</translation>
    </message>
    <message>
        <source>Profile-4</source>
        <translation>프로필 4</translation>
    </message>
    <message>
        <source>Profile-5</source>
        <translation>프로필 5</translation>
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
    <name>ModuleLinear</name>
    <message>
        <source>按下(mm)</source>
        <translation>액추에이션(mm)</translation>
    </message>
    <message>
        <source>抬起(mm)</source>
        <translation>릴리스(mm)</translation>
    </message>
    <message>
        <source>%1(mm)</source>
        <translation>%1(mm)</translation>
    </message>
</context>
<context>
    <name>ModuleMTTab</name>
    <message>
        <source>选定上方键位，可通过选择单击及长按两种触发模式，设置两个功能（支持组合键）</source>
        <translation>위에서 키를 선택해 탭과 홀드에 각각 기능을 하나씩 지정합니다(조합 키 지원)</translation>
    </message>
    <message>
        <source>单击</source>
        <translation>탭</translation>
    </message>
    <message>
        <source>按住</source>
        <translation>홀드</translation>
    </message>
    <message>
        <source>调整触发“按住&quot;键所需的时间</source>
        <translation>‘홀드’가 작동하기까지의 시간 조정</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>按住超过这段时间才执行“按住”的功能</source>
        <translation>이보다 오래 누르면 ‘홀드’ 기능이 실행됩니다</translation>
    </message>
</context>
<context>
    <name>ModuleMacroManager</name>
    <message>
        <source>新建宏</source>
        <translation>새 매크로 </translation>
    </message>
</context>
<context>
    <name>ModuleRtSet</name>
    <message>
        <source>RT行程设置(全局)</source>
        <translation>RT 감도(전체)</translation>
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
    <name>ModuleSnapTab</name>
    <message>
        <source>绑定2个选定按键(分别从上面选择)，当两个按键被同时按下时，以最后按下的按键为准</source>
        <translation>선택한 키 2개(위에서 각각 선택)를 묶습니다. 두 키를 동시에 누르면 마지막에 누른 키가 우선합니다(SOCD)</translation>
    </message>
    <message>
        <source>选择A键</source>
        <translation>A 키 선택</translation>
    </message>
    <message>
        <source>选择B键</source>
        <translation>B 키 선택</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>확인</translation>
    </message>
</context>
<context>
    <name>ModuleTGLTab</name>
    <message>
        <source>选定上方键位，可通过选择连点及长按两种触发模式，设置两个功能</source>
        <translation>위에서 키를 선택하고 연타와 길게 누르기 두 가지 방식 중에서 골라 기능을 설정합니다</translation>
    </message>
    <message>
        <source>连点</source>
        <translation>연타</translation>
    </message>
    <message>
        <source>长按</source>
        <translation>길게 누르기</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>未设置功能</source>
        <translation>기능 없음</translation>
    </message>
</context>
<context>
    <name>ModuleVideoItem</name>
    <message>
        <source>Movie</source>
        <translation>동영상</translation>
    </message>
    <message>
        <source>Orbe 7090 操作指南-宏设置</source>
        <translation>Orbe 7090 사용 안내: 매크로 설정</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Select All</source>
        <translation>모두 선택(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>늘리기(&amp;S)</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>줄이기(&amp;D)</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>실행 취소(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>다시 실행(&amp;R)</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>잘라내기(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>복사(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>붙여넣기(&amp;P)</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>삭제</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>모두 선택</translation>
    </message>
</context>
<context>
    <name>ShellNotices</name>
    <message>
        <source>重试</source>
        <translation>다시 시도</translation>
    </message>
</context>
<context>
    <name>StabilityPage</name>
    <message>
        <source>RT Stab(RT 增稳算法)</source>
        <translation>RT Stab(RT 안정화)</translation>
    </message>
    <message>
        <source>RT Stab打开后，算法会介入增强轴体底部的稳定性。介入百分比越大，稳定性越强，延迟也会有所增加。</source>
        <translation>RT Stab을 켜면 스위치 바닥 구간의 안정성이 높아집니다. 비율이 높을수록 더 안정적이지만 지연도 조금 늘어납니다.</translation>
    </message>
    <message>
        <source>0%(关闭)</source>
        <translation>0%(끔)</translation>
    </message>
    <message>
        <source>防误触模式</source>
        <translation>오입력 방지 모드</translation>
    </message>
    <message>
        <source>(已关闭)</source>
        <translation>(꺼짐)</translation>
    </message>
    <message>
        <source>防止极限性能下桌面抖动误触发或轴体公差可能造成还有0.1mm的行程公差。开启后优化底部按键算法补足行程差值提高键盘稳定性。</source>
        <translation>극한 설정에서 책상 흔들림으로 인한 오입력이나 스위치 공차로 생길 수 있는 0.1 mm 오차를 막습니다. 켜면 바닥 구간 알고리즘이 오차를 보정해 안정성을 높입니다.</translation>
    </message>
    <message>
        <source>已开启</source>
        <translation>켜짐</translation>
    </message>
    <message>
        <source>已关闭</source>
        <translation>꺼짐</translation>
    </message>
</context>
<context>
    <name>SwitchTypePage</name>
    <message>
        <source>轴体设置</source>
        <translation>스위치 종류</translation>
    </message>
    <message>
        <source>更换键盘轴体后，选择对应轴体的按键，点击下方对应的轴体选项进行设置来区分不同轴体</source>
        <translation>스위치를 교체한 뒤 아래에서 해당 스위치를 고르고 장착한 키를 클릭해 구분하세요</translation>
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
        <translation>토글 스위치</translation>
    </message>
</context>
<context>
    <name>TravelPage</name>
    <message>
        <source>单独设置按下抬起触发行程：</source>
        <translation>액추에이션과 릴리스 따로 설정:</translation>
    </message>
    <message>
        <source>全程连续快速触发（RT）</source>
        <translation>연속 래피드 트리거(RT)</translation>
    </message>
    <message>
        <source>启用时，快速触发在您完全松开按键时才会终止。
禁用时，松开按键到轴体触发行程后终止快速触发</source>
        <translation>켜기: 키를 완전히 뗄 때까지 래피드 트리거가 유지됩니다.
끄기: 키가 액추에이션 포인트 위로 올라오면 래피드 트리거가 끝납니다</translation>
    </message>
    <message>
        <source>单独设置按键再次按下触发和松开重置行程</source>
        <translation>RT 누름과 뗌 거리를 따로 설정</translation>
    </message>
    <message>
        <source>再次按下按键触发所需的行程(mm)</source>
        <translation>다시 누를 때 입력되는 거리(mm)</translation>
    </message>
    <message>
        <source>松开按键重置所需的行程(mm)</source>
        <translation>뗄 때 리셋되는 거리(mm)</translation>
    </message>
    <message>
        <source>设置</source>
        <translation>적용</translation>
    </message>
    <message>
        <source>抬起后再按下这段距离即再次触发，越小越灵敏</source>
        <translation>뗀 위치에서 이 거리만큼 누르면 다시 입력됩니다. 작을수록 민감합니다</translation>
    </message>
    <message>
        <source>按下后抬起这段距离即释放，越小越灵敏</source>
        <translation>누른 위치에서 이 거리만큼 떼면 해제됩니다. 작을수록 민감합니다</translation>
    </message>
    <message>
        <source>按键按到多深时触发</source>
        <translation>키가 얼마나 눌리면 입력되는지</translation>
    </message>
    <message>
        <source>按键抬到多高时释放</source>
        <translation>키가 얼마나 올라오면 해제되는지</translation>
    </message>
</context>
<context>
    <name>TravelRuler</name>
    <message>
        <source>行程测试</source>
        <translation>트래블 테스트</translation>
    </message>
</context>
<context>
    <name>WorkMeter</name>
    <message>
        <source>正在读取键盘</source>
        <translation>키보드 읽는 중</translation>
    </message>
    <message>
        <source>正在写入键盘</source>
        <translation>키보드에 쓰는 중</translation>
    </message>
</context>
</TS>
