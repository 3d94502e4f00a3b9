<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="zh_CN">
<context>
    <name>ColorSlider</name>
    <message>
        <source>色相</source>
        <translation>Оттенок</translation>
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
        <translation>Команда,Длина данных,Byte0
Номер команды (Hex),Byte1
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
        <translation>Вкладки</translation>
    </message>
</context>
<context>
    <name>CustumSlider</name>
    <message>
        <source>滑块</source>
        <translation>Ползунок</translation>
    </message>
</context>
<context>
    <name>DeadZonePage</name>
    <message>
        <source>死区设置</source>
        <translation>Мёртвые зоны</translation>
    </message>
    <message>
        <source>按键死区设定</source>
        <translation>Мёртвые зоны клавиш</translation>
    </message>
    <message>
        <source>触底到抬起前的距离俗称“死区”。死区可减少磁轴因环境干扰带来的断触问题，磁轴的底部可自定义，您可根据个人需求自定义死区，设定之后，此段行程不会触发。</source>
        <translation>Расстояние от упора до начала подъёма называют «мёртвой зоной». Она не даёт помехам прерывать удержание магнитного свитча. Настройте её под себя: в пределах этой зоны клавиша не срабатывает.</translation>
    </message>
    <message>
        <source>设置</source>
        <translation>Применить</translation>
    </message>
    <message>
        <source>顶部死区</source>
        <translation>Верхняя мёртвая зона</translation>
    </message>
    <message>
        <source>底部死区</source>
        <translation>Нижняя мёртвая зона</translation>
    </message>
    <message>
        <source>按键顶部不触发的距离，可防误触</source>
        <translation>Участок вверху хода без срабатывания — против случайных нажатий</translation>
    </message>
    <message>
        <source>按键底部不响应的距离，可防抖动</source>
        <translation>Участок внизу хода без реакции — против дребезга удерживаемой клавиши</translation>
    </message>
</context>
<context>
    <name>DemoBoard</name>
    <message>
        <source>没有插入键盘</source>
        <translation>Клавиатура не подключена</translation>
    </message>
    <message>
        <source>虚拟键盘的灯光</source>
        <translation>Подсветка виртуальной клавиатуры</translation>
    </message>
    <message>
        <source>虚拟键盘</source>
        <translation>Виртуальная клавиатура</translation>
    </message>
    <message>
        <source>单击按键即可按下它，部分灯效会作出反应。</source>
        <translation>Щёлкните по клавише, чтобы нажать её; некоторые эффекты реагируют.</translation>
    </message>
    <message>
        <source>灯光已关闭</source>
        <translation>Подсветка выключена</translation>
    </message>
    <message>
        <source>%1 · 亮度 %2% · 速度 %3%</source>
        <translation>%1 · яркость %2% · скорость %3%</translation>
    </message>
</context>
<context>
    <name>DemoDesk</name>
    <message>
        <source>虚拟设备</source>
        <translation>Виртуальные устройства</translation>
    </message>
    <message>
        <source>插入或拔出虚拟设备：</source>
        <translation>Подключение и отключение виртуальных устройств:</translation>
    </message>
    <message>
        <source>依次按下所有按键</source>
        <translation>Нажать все клавиши по очереди</translation>
    </message>
    <message>
        <source>显示键盘的灯光</source>
        <translation>Показать подсветку клавиатуры</translation>
    </message>
</context>
<context>
    <name>DeviceOptionsPanel</name>
    <message>
        <source>键盘回报率</source>
        <translation>Частота опроса</translation>
    </message>
    <message>
        <source>2.4G关闭背光</source>
        <translation>Выкл. света 2.4G</translation>
    </message>
    <message>
        <source>蓝牙关闭背光</source>
        <translation>Выкл. света Bluetooth</translation>
    </message>
    <message>
        <source>2.4G深度睡眠时间</source>
        <translation>Глубокий сон 2.4G</translation>
    </message>
    <message>
        <source>分钟</source>
        <translation>мин</translation>
    </message>
    <message>
        <source>蓝牙深度睡眠时间</source>
        <translation>Глубокий сон Bluetooth</translation>
    </message>
    <message>
        <source>按键防抖等级设置</source>
        <translation>Уровень антидребезга</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 мин</translation>
    </message>
    <message>
        <source>键盘每秒向电脑报告的次数，越高延迟越低</source>
        <translation>Сколько раз в секунду клавиатура передаёт данные компьютеру: чем чаще, тем меньше задержка</translation>
    </message>
    <message>
        <source>不按键多久后关闭背光</source>
        <translation>Через сколько времени без нажатий гаснет подсветка</translation>
    </message>
    <message>
        <source>不按键多久后进入深度睡眠，可省电</source>
        <translation>Через сколько времени без нажатий клавиатура засыпает; это экономит заряд</translation>
    </message>
    <message>
        <source>级别越高越能避免连击，但会增加延迟</source>
        <translation>Чем выше уровень, тем надёжнее защита от двойных нажатий, но тем больше задержка</translation>
    </message>
</context>
<context>
    <name>DeviceTrouble</name>
    <message>
        <source>系统不允许访问此键盘。请将 70-orbehub.rules 复制到 /etc/udev/rules.d，然后重新插拔键盘。</source>
        <translation>Система не даёт доступа к этой клавиатуре. Скопируйте 70-orbehub.rules в /etc/udev/rules.d и подключите клавиатуру снова.</translation>
    </message>
    <message>
        <source>系统不允许访问此键盘。请检查您的用户权限，然后重新插拔键盘。</source>
        <translation>Система не даёт доступа к этой клавиатуре. Проверьте права пользователя и подключите клавиатуру снова.</translation>
    </message>
    <message>
        <source>已断开</source>
        <translation>Отключена</translation>
    </message>
    <message>
        <source>键盘已断开，重新连接后即可使用。</source>
        <translation>Клавиатура отключена. Подключите её снова.</translation>
    </message>
    <message>
        <source>没有响应</source>
        <translation>Не отвечает</translation>
    </message>
    <message>
        <source>键盘没有响应，可能处于休眠状态，请按任意键唤醒。</source>
        <translation>Клавиатура не отвечает. Возможно, она спит: нажмите любую клавишу.</translation>
    </message>
    <message>
        <source>没有访问权限</source>
        <translation>Нет доступа</translation>
    </message>
    <message>
        <source>无法打开</source>
        <translation>Не открывается</translation>
    </message>
    <message>
        <source>无法打开键盘，可能正被其他程序占用。请关闭该程序后重新插拔键盘。</source>
        <translation>Не удаётся открыть клавиатуру. Возможно, её занимает другая программа: закройте её и подключите клавиатуру снова.</translation>
    </message>
    <message>
        <source>键盘</source>
        <translation>Клавиатура</translation>
    </message>
</context>
<context>
    <name>DialogColorPicker</name>
    <message>
        <source>取色器</source>
        <translation>Палитра</translation>
    </message>
    <message>
        <source>按住并拖到屏幕上的任意位置取色</source>
        <translation>Удерживайте и перетащите в любую точку экрана, чтобы взять цвет</translation>
    </message>
    <message>
        <source>完成</source>
        <translation>Готово</translation>
    </message>
</context>
<context>
    <name>DialogDeviceConnect</name>
    <message>
        <source>Orbe Studio 设备调试</source>
        <translation>Orbe Studio: отладка устройства</translation>
    </message>
    <message>
        <source>命令目录</source>
        <translation>Каталог команд</translation>
    </message>
</context>
<context>
    <name>DialogFNPicker</name>
    <message>
        <source>组合键</source>
        <translation>Комбинация клавиш</translation>
    </message>
    <message>
        <source>基本字符</source>
        <translation>Основные клавиши</translation>
    </message>
    <message>
        <source>拓展字符(按键)</source>
        <translation>Дополнительные клавиши</translation>
    </message>
    <message>
        <source>宏设置</source>
        <translation>Макросы</translation>
    </message>
    <message>
        <source>播放方式:</source>
        <translation>Режим воспроизведения:</translation>
    </message>
    <message>
        <source>循环次数</source>
        <translation>Число повторов</translation>
    </message>
    <message>
        <source>自动</source>
        <translation>Авто</translation>
    </message>
    <message>
        <source>按下</source>
        <translation>Нажатие</translation>
    </message>
    <message>
        <source>系统功能</source>
        <translation>Системные функции</translation>
    </message>
    <message>
        <source>鼠标功能</source>
        <translation>Функции мыши</translation>
    </message>
    <message>
        <source>设置功能为:</source>
        <translation>Назначить функцию:</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>左键</source>
        <translation>Левая</translation>
    </message>
    <message>
        <source>右键</source>
        <translation>Правая</translation>
    </message>
    <message>
        <source>中键</source>
        <translation>Средняя</translation>
    </message>
    <message>
        <source>前移</source>
        <translation>Вперёд</translation>
    </message>
    <message>
        <source>后移</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>左滚</source>
        <translation>Колесо влево</translation>
    </message>
    <message>
        <source>右滚</source>
        <translation>Колесо вправо</translation>
    </message>
    <message>
        <source>上滚</source>
        <translation>Колесо вверх</translation>
    </message>
    <message>
        <source>下滚</source>
        <translation>Колесо вниз</translation>
    </message>
    <message>
        <source>向上滚屏</source>
        <translation>Прокрутка вверх</translation>
    </message>
    <message>
        <source>向下滚屏</source>
        <translation>Прокрутка вниз</translation>
    </message>
    <message>
        <source>自定义按键</source>
        <translation>Свои клавиши</translation>
    </message>
    <message>
        <source>宏</source>
        <translation>Макрос </translation>
    </message>
    <message>
        <source>未录制的宏</source>
        <translation>Макрос не записан</translation>
    </message>
</context>
<context>
    <name>DialogVKPicker</name>
    <message>
        <source>基本字符</source>
        <translation>Основные клавиши</translation>
    </message>
    <message>
        <source>拓展字符</source>
        <translation>Дополнительные клавиши</translation>
    </message>
    <message>
        <source>组合键：</source>
        <translation>Комбинация клавиш:</translation>
    </message>
    <message>
        <source>确认</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>组合键</source>
        <translation>Комбинация клавиш</translation>
    </message>
</context>
<context>
    <name>FrameAbout</name>
    <message>
        <source>关于</source>
        <translation>О программе</translation>
    </message>
    <message>
        <source>设备名称：Orbe 7090</source>
        <translation>Устройство: Orbe 7090</translation>
    </message>
    <message>
        <source>键盘固件版本：V1.0</source>
        <translation>Версия прошивки клавиатуры: V1.0</translation>
    </message>
    <message>
        <source>无线连接器固件版本：V1.0</source>
        <translation>Версия прошивки приёмника: V1.0</translation>
    </message>
    <message>
        <source>当前版本：V1.0</source>
        <translation>Текущая версия: V1.0</translation>
    </message>
    <message>
        <source>检查键盘固件更新</source>
        <translation>Проверить обновление прошивки клавиатуры</translation>
    </message>
    <message>
        <source>检查无线连接器固件更新</source>
        <translation>Проверить обновление прошивки приёмника</translation>
    </message>
    <message>
        <source>操作教学</source>
        <translation>Обучение</translation>
    </message>
    <message>
        <source>关于Orbe</source>
        <translation>О компании Orbe</translation>
    </message>
</context>
<context>
    <name>FrameDeviceHolder</name>
    <message>
        <source>首页</source>
        <translation>Главная</translation>
    </message>
    <message>
        <source>键盘设置</source>
        <translation>Настройка клавиш</translation>
    </message>
    <message>
        <source>磁轴设置</source>
        <translation>Магнитные свитчи</translation>
    </message>
    <message>
        <source>宏设置</source>
        <translation>Макросы</translation>
    </message>
    <message>
        <source>灯效设置</source>
        <translation>Настройка подсветки</translation>
    </message>
    <message>
        <source>关于</source>
        <translation>О программе</translation>
    </message>
    <message>
        <source>用户</source>
        <translation>Пользователь</translation>
    </message>
    <message>
        <source>返回</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>板载 1</source>
        <translation>Профиль 1</translation>
    </message>
    <message>
        <source>板载 2</source>
        <translation>Профиль 2</translation>
    </message>
    <message>
        <source>板载 3</source>
        <translation>Профиль 3</translation>
    </message>
    <message>
        <source>板载 4</source>
        <translation>Профиль 4</translation>
    </message>
    <message>
        <source>对码</source>
        <translation>Сопряжение</translation>
    </message>
    <message>
        <source>恢复默认</source>
        <translation>Сбросить</translation>
    </message>
    <message>
        <source>行程校准</source>
        <translation>Калибровка</translation>
    </message>
    <message>
        <source>灯光设置</source>
        <translation>Подсветка</translation>
    </message>
</context>
<context>
    <name>FrameDeviceShow</name>
    <message>
        <source>剩余电量</source>
        <translation>Заряд батареи</translation>
    </message>
</context>
<context>
    <name>FrameKeySetting</name>
    <message>
        <source>自定义</source>
        <translation>Своё</translation>
    </message>
    <message>
        <source>高级键</source>
        <translation>Особые</translation>
    </message>
    <message>
        <source>其他设置</source>
        <translation>Прочее</translation>
    </message>
    <message>
        <source>Fn层设置</source>
        <translation>Слой Fn</translation>
    </message>
    <message>
        <source>自定义/Fn层设置</source>
        <translation>Свои клавиши / слой Fn</translation>
    </message>
    <message>
        <source>*首先点击选择上方按键，在弹出的对话框中可选择组合键、宏设置、系统功能、鼠标功能进行改建设置</source>
        <translation>*Сначала щёлкните по клавише выше, затем выберите в окне комбинацию, макрос, системную функцию или функцию мыши</translation>
    </message>
    <message>
        <source>*右键点击按键可清除设置、禁用按键或取消禁用</source>
        <translation>*Щёлкните по клавише правой кнопкой, чтобы сбросить её настройку, отключить или снова включить её</translation>
    </message>
    <message>
        <source>动态键程(DKS)</source>
        <translation>Динамическое нажатие (DKS)</translation>
    </message>
    <message>
        <source>按住/单击(MT)</source>
        <translation>Mod-Tap (MT)</translation>
    </message>
    <message>
        <source>切换开关(TGL)</source>
        <translation>Переключение (TGL)</translation>
    </message>
    <message>
        <source>Fn层按键设置</source>
        <translation>Клавиши слоя Fn</translation>
    </message>
    <message>
        <source>自定义按键</source>
        <translation>Свои клавиши</translation>
    </message>
</context>
<context>
    <name>FrameLight</name>
    <message>
        <source>点击按键上色，拖动可给多个按键上色</source>
        <translation>Щёлкните по клавише, чтобы закрасить её, или проведите по нескольким</translation>
    </message>
    <message>
        <source>我的作品</source>
        <translation>Мои работы</translation>
    </message>
    <message>
        <source>颜色:</source>
        <translation>Цвет:</translation>
    </message>
    <message>
        <source>取色器：</source>
        <translation>Пипетка:</translation>
    </message>
    <message>
        <source>随机颜色：</source>
        <translation>Случайный цвет:</translation>
    </message>
    <message>
        <source>清除设置</source>
        <translation>Сбросить</translation>
    </message>
    <message>
        <source>写入层(图):</source>
        <translation>Записать в слой:</translation>
    </message>
    <message>
        <source>图1</source>
        <translation>Рис. 1</translation>
    </message>
    <message>
        <source>图2</source>
        <translation>Рис. 2</translation>
    </message>
    <message>
        <source>图3</source>
        <translation>Рис. 3</translation>
    </message>
    <message>
        <source>图4</source>
        <translation>Рис. 4</translation>
    </message>
    <message>
        <source>图5</source>
        <translation>Рис. 5</translation>
    </message>
    <message>
        <source>读取层(图):</source>
        <translation>Прочитать слой:</translation>
    </message>
    <message>
        <source>作品名称:</source>
        <translation>Название:</translation>
    </message>
    <message>
        <source>更新</source>
        <translation>Обновить</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>还没有作品，给按键上色后点击“保存”</source>
        <translation>Работ пока нет. Раскрасьте клавиши и нажмите «Сохранить»</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Внимание</translation>
    </message>
    <message>
        <source>确认要删除此作品吗？</source>
        <translation>Удалить эту работу?</translation>
    </message>
    <message>
        <source>我的作品%1</source>
        <translation>Моя работа %1</translation>
    </message>
    <message>
        <source>作品已保存</source>
        <translation>Работа сохранена</translation>
    </message>
    <message>
        <source>把现在的颜色写入键盘的这一层</source>
        <translation>Записывает показанные цвета в этот слой клавиатуры</translation>
    </message>
    <message>
        <source>显示键盘这一层里的颜色</source>
        <translation>Показывает цвета, записанные в этом слое клавиатуры</translation>
    </message>
</context>
<context>
    <name>FrameMacro</name>
    <message>
        <source>宏设置</source>
        <translation>Макросы</translation>
    </message>
    <message>
        <source>抬起</source>
        <translation>Отпускание</translation>
    </message>
    <message>
        <source>按下</source>
        <translation>Нажатие</translation>
    </message>
    <message>
        <source>延迟</source>
        <translation>Задержка</translation>
    </message>
    <message>
        <source>开始录制</source>
        <translation>Начать запись</translation>
    </message>
    <message>
        <source>插入</source>
        <translation>Вставить</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>清空</source>
        <translation>Очистить</translation>
    </message>
    <message>
        <source>设置固定延迟(ms):</source>
        <translation>Задержка (мс):</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>新建宏</source>
        <translation>Новый макрос</translation>
    </message>
    <message>
        <source>停止录制</source>
        <translation>Остановить</translation>
    </message>
    <message>
        <source>点击“开始录制”后按下按键，或点击“插入”添加事件</source>
        <translation>Нажмите «Начать запись» и вводите клавиши или добавьте событие кнопкой «Вставить»</translation>
    </message>
    <message>
        <source>请在左侧选择一个宏</source>
        <translation>Выберите макрос слева</translation>
    </message>
    <message>
        <source>占用</source>
        <translation>Занято</translation>
    </message>
    <message>
        <source>字节</source>
        <translation>байт</translation>
    </message>
    <message>
        <source>录制键盘和鼠标按键，再次点击结束</source>
        <translation>Записывает клавиши и кнопки мыши до повторного нажатия</translation>
    </message>
    <message>
        <source>把所有延迟都设为右侧的值</source>
        <translation>Делает все задержки равными числу справа</translation>
    </message>
</context>
<context>
    <name>FrameMagic</name>
    <message>
        <source>行程设置</source>
        <translation>Точка срабатывания</translation>
    </message>
    <message>
        <source>死区设置</source>
        <translation>Мёртвые зоны</translation>
    </message>
    <message>
        <source>轴体设置</source>
        <translation>Тип свитчей</translation>
    </message>
    <message>
        <source>增稳算法</source>
        <translation>Стабилизация</translation>
    </message>
    <message>
        <source>模拟测试</source>
        <translation>Тест</translation>
    </message>
    <message>
        <source>已选中按键的数量</source>
        <translation>Выбрано клавиш</translation>
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
        <translation>Механический</translation>
    </message>
    <message>
        <source>凯华轴</source>
        <translation>Kailh</translation>
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
        <translation>Низкопрофильный магнитный</translation>
    </message>
    <message>
        <source>星芒磁轴</source>
        <translation>Starburst</translation>
    </message>
    <message>
        <source>白泽轴</source>
        <translation>Baize</translation>
    </message>
    <message>
        <source>自定义</source>
        <translation>Своё</translation>
    </message>
</context>
<context>
    <name>FrameMain</name>
    <message>
        <source>键程设置(全局)</source>
        <translation>Точка срабатывания (все клавиши)</translation>
    </message>
</context>
<context>
    <name>FrameSystemInfo</name>
    <message>
        <source>系统设置</source>
        <translation>Системные настройки</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>开机时自动开启本程序</source>
        <translation>Запускать вместе с системой</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>HubTray</name>
    <message>
        <source>显示窗口</source>
        <translation>Показать окно</translation>
    </message>
    <message>
        <source>隐藏窗口</source>
        <translation>Скрыть окно</translation>
    </message>
    <message>
        <source>退出程序</source>
        <translation>Выход</translation>
    </message>
</context>
<context>
    <name>KeyBubble</name>
    <message>
        <source>系统按键</source>
        <translation>Системная клавиша</translation>
    </message>
    <message>
        <source>动态键程</source>
        <translation>Динамическое нажатие</translation>
    </message>
    <message>
        <source>按住单击</source>
        <translation>Mod-Tap</translation>
    </message>
    <message>
        <source>切换开关</source>
        <translation>Переключение</translation>
    </message>
    <message>
        <source>宏设置</source>
        <translation>Макросы</translation>
    </message>
</context>
<context>
    <name>KeyTestPage</name>
    <message>
        <source>行程测试</source>
        <translation>Тест хода</translation>
    </message>
    <message>
        <source>按键测试</source>
        <translation>Тест клавиш</translation>
    </message>
    <message>
        <source>输入值</source>
        <translation>Ввод</translation>
    </message>
    <message>
        <source>按下任意按键。无线连接下没有实时行程数据。</source>
        <translation>Нажмите любую клавишу. По беспроводной связи данные о ходе не передаются.</translation>
    </message>
</context>
<context>
    <name>LightWorksModel</name>
    <message>
        <source>删除</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>预览图,作品名称,管理</source>
        <translation>Просмотр,Название,Действие</translation>
    </message>
</context>
<context>
    <name>LinearFixing1</name>
    <message>
        <source>行程校准操作指南</source>
        <translation>Как откалибровать ход клавиш</translation>
    </message>
    <message>
        <source>请依次将每个按键轻按到底并停留至少1秒钟，直到按键变为橙色（表示该按键校准成功），请勿遗漏，可重复按按键。无线下不支持按键校准个数提示。校准过程中请勿拔出数据线。</source>
        <translation>Поочерёдно плавно нажмите каждую клавишу до упора и удерживайте не менее 1 секунды, пока она не станет оранжевой (клавиша откалибрована). Не пропускайте клавиши; нажимать можно повторно. При беспроводном подключении число откалиброванных клавиш не показывается. Не отключайте кабель во время калибровки.</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>开始校准</source>
        <translation>Начать калибровку</translation>
    </message>
</context>
<context>
    <name>LinearFixing2</name>
    <message>
        <source>行程校准</source>
        <translation>Калибровка</translation>
    </message>
    <message>
        <source>请依次将每个按键轻按到底并停留至少1秒钟，直到按键变为橙色（表示该按键校准成功），请勿遗漏，可重复按按键。无线下不支持按键校准个数提示。校准过程中请勿拔出数据线。</source>
        <translation>Поочерёдно плавно нажмите каждую клавишу до упора и удерживайте не менее 1 секунды, пока она не станет оранжевой (клавиша откалибрована). Не пропускайте клавиши; нажимать можно повторно. При беспроводном подключении число откалиброванных клавиш не показывается. Не отключайте кабель во время калибровки.</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>完成校准</source>
        <translation>Завершить калибровку</translation>
    </message>
</context>
<context>
    <name>MacroItem</name>
    <message>
        <source>重命名</source>
        <translation>Переименовать</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Удалить</translation>
    </message>
</context>
<context>
    <name>MacroSquare</name>
    <message>
        <source>插入</source>
        <translation>Вставить</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>延迟</source>
        <translation>Задержка</translation>
    </message>
    <message>
        <source>左键</source>
        <translation>Левая</translation>
    </message>
    <message>
        <source>右键</source>
        <translation>Правая</translation>
    </message>
    <message>
        <source>中键</source>
        <translation>Средняя</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>语言</source>
        <translation>Язык</translation>
    </message>
    <message>
        <source>系统设置</source>
        <translation>Системные настройки</translation>
    </message>
    <message>
        <source>最小化</source>
        <translation>Свернуть</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Выкл.</translation>
    </message>
    <message>
        <source>搜索设备</source>
        <translation>Найти устройства</translation>
    </message>
    <message>
        <source>我的设备</source>
        <translation>Мои устройства </translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Внимание</translation>
    </message>
    <message>
        <source>确定要退出 ORBE 驱动程序？</source>
        <translation>Выйти из драйвера ORBE?</translation>
    </message>
    <message>
        <source>正在搜索设备</source>
        <translation>Поиск устройств</translation>
    </message>
    <message>
        <source>向左滚动</source>
        <translation>Прокрутить влево</translation>
    </message>
    <message>
        <source>向右滚动</source>
        <translation>Прокрутить вправо</translation>
    </message>
    <message>
        <source>返回</source>
        <translation>Назад</translation>
    </message>
</context>
<context>
    <name>MessageBox</name>
    <message>
        <source>是</source>
        <translation>Да</translation>
    </message>
    <message>
        <source>否</source>
        <translation>Нет</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>ModuleAddMacroSquare</name>
    <message>
        <source>请选择添加宏事件类型</source>
        <translation>Выберите тип события макроса</translation>
    </message>
    <message>
        <source>键盘按键</source>
        <translation>Клавиша</translation>
    </message>
    <message>
        <source>请按下按键......</source>
        <translation>Нажмите клавишу…</translation>
    </message>
    <message>
        <source>鼠标按键</source>
        <translation>Кнопка мыши</translation>
    </message>
    <message>
        <source>左键</source>
        <translation>Левая</translation>
    </message>
    <message>
        <source>中键</source>
        <translation>Средняя</translation>
    </message>
    <message>
        <source>右键</source>
        <translation>Правая</translation>
    </message>
    <message>
        <source>鼠标位置</source>
        <translation>Положение мыши</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>ОК</translation>
    </message>
</context>
<context>
    <name>ModuleDKSAdjust</name>
    <message>
        <source>按下(mm)</source>
        <translation>Нажатие (мм)</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Сохранить</translation>
    </message>
</context>
<context>
    <name>ModuleDKSItem</name>
    <message>
        <source>按下触发</source>
        <translation>Пройдена точка срабатывания</translation>
    </message>
    <message>
        <source>按到底部</source>
        <translation>Нажата до упора</translation>
    </message>
    <message>
        <source>离开底部</source>
        <translation>Отошла от упора</translation>
    </message>
    <message>
        <source>回到顶部</source>
        <translation>Вернулась вверх</translation>
    </message>
    <message>
        <source>未设置功能</source>
        <translation>Не задано</translation>
    </message>
    <message>
        <source>已开启</source>
        <translation>Вкл.</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Выкл.</translation>
    </message>
</context>
<context>
    <name>ModuleDKSTab</name>
    <message>
        <source>确定</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>按下触发</source>
        <translation>Пройдена точка срабатывания</translation>
    </message>
    <message>
        <source>按到底部</source>
        <translation>Нажата до упора</translation>
    </message>
    <message>
        <source>离开底部</source>
        <translation>Отошла от упора</translation>
    </message>
    <message>
        <source>回到顶部</source>
        <translation>Вернулась вверх</translation>
    </message>
</context>
<context>
    <name>ModuleEfColor</name>
    <message>
        <source>系统默认</source>
        <translation>По умолчанию</translation>
    </message>
    <message>
        <source>自定义</source>
        <translation>Своё</translation>
    </message>
    <message>
        <source>单键</source>
        <translation>Одна клавиша</translation>
    </message>
    <message>
        <source>灯带灯效设置</source>
        <translation>Световая полоса</translation>
    </message>
    <message>
        <source>灯效：</source>
        <translation>Эффект:</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Выкл.</translation>
    </message>
    <message>
        <source>常亮</source>
        <translation>Постоянный</translation>
    </message>
    <message>
        <source>呼吸</source>
        <translation>Дыхание</translation>
    </message>
    <message>
        <source>川流不息</source>
        <translation>Поток</translation>
    </message>
    <message>
        <source>霓虹</source>
        <translation>Неон</translation>
    </message>
    <message>
        <source>光波</source>
        <translation>Волна</translation>
    </message>
    <message>
        <source>色彩：</source>
        <translation>Цвет:</translation>
    </message>
    <message>
        <source>炫彩</source>
        <translation>RGB</translation>
    </message>
    <message>
        <source>亮度：</source>
        <translation>Яркость:</translation>
    </message>
    <message>
        <source>速度：</source>
        <translation>Скорость:</translation>
    </message>
    <message>
        <source>颜色%1</source>
        <translation>Цвет %1</translation>
    </message>
    <message>
        <source>取色器</source>
        <translation>Палитра</translation>
    </message>
</context>
<context>
    <name>ModuleEfLumi</name>
    <message>
        <source>灯光亮度</source>
        <translation>Яркость</translation>
    </message>
</context>
<context>
    <name>ModuleEfMode</name>
    <message>
        <source>灯效模式</source>
        <translation>Режим подсветки</translation>
    </message>
    <message>
        <source>关灯</source>
        <translation>Выкл.</translation>
    </message>
    <message>
        <source>灯光播放模式:</source>
        <translation>Режим показа:</translation>
    </message>
    <message>
        <source>常亮</source>
        <translation>Постоянный</translation>
    </message>
    <message>
        <source>呼吸</source>
        <translation>Дыхание</translation>
    </message>
    <message>
        <source>流星</source>
        <translation>Метеор</translation>
    </message>
    <message>
        <source>涟漪</source>
        <translation>Рябь</translation>
    </message>
    <message>
        <source>极光</source>
        <translation>Сияние</translation>
    </message>
    <message>
        <source>雨滴</source>
        <translation>Капли</translation>
    </message>
    <message>
        <source>聚合</source>
        <translation>Схождение</translation>
    </message>
    <message>
        <source>川流不息</source>
        <translation>Поток</translation>
    </message>
    <message>
        <source>霓虹</source>
        <translation>Неон</translation>
    </message>
    <message>
        <source>光波</source>
        <translation>Волна</translation>
    </message>
    <message>
        <source>繁星点点</source>
        <translation>Звёзды</translation>
    </message>
    <message>
        <source>如影随形</source>
        <translation>Тень</translation>
    </message>
    <message>
        <source>正弦波</source>
        <translation>Синусоида</translation>
    </message>
    <message>
        <source>彩泉涌动</source>
        <translation>Фонтан красок</translation>
    </message>
    <message>
        <source>百花争艳</source>
        <translation>Цветение</translation>
    </message>
    <message>
        <source>一石二鸟</source>
        <translation>Два зайца</translation>
    </message>
    <message>
        <source>峰回路转</source>
        <translation>Извилистый путь</translation>
    </message>
    <message>
        <source>斜风细雨</source>
        <translation>Морось</translation>
    </message>
    <message>
        <source>踏雪无痕</source>
        <translation>Снег без следов</translation>
    </message>
    <message>
        <source>层出不穷</source>
        <translation>Слои</translation>
    </message>
    <message>
        <source>光影</source>
        <translation>Свет и тень</translation>
    </message>
    <message>
        <source>音乐律动</source>
        <translation>Музыка</translation>
    </message>
    <message>
        <source>自定义</source>
        <translation>Своё</translation>
    </message>
    <message>
        <source>左</source>
        <translation>Влево</translation>
    </message>
    <message>
        <source>右</source>
        <translation>Вправо</translation>
    </message>
    <message>
        <source>上</source>
        <translation>Вверх</translation>
    </message>
    <message>
        <source>下</source>
        <translation>Вниз</translation>
    </message>
    <message>
        <source>Z形</source>
        <translation>Зигзаг</translation>
    </message>
    <message>
        <source>回形</source>
        <translation>Спираль</translation>
    </message>
    <message>
        <source>向内</source>
        <translation>Внутрь</translation>
    </message>
    <message>
        <source>向外</source>
        <translation>Наружу</translation>
    </message>
    <message>
        <source>向右</source>
        <translation>Вправо</translation>
    </message>
    <message>
        <source>向左</source>
        <translation>Влево</translation>
    </message>
    <message>
        <source>图案1</source>
        <translation>Рисунок 1</translation>
    </message>
    <message>
        <source>图案2</source>
        <translation>Рисунок 2</translation>
    </message>
    <message>
        <source>图案3</source>
        <translation>Рисунок 3</translation>
    </message>
    <message>
        <source>图案4</source>
        <translation>Рисунок 4</translation>
    </message>
    <message>
        <source>图案5</source>
        <translation>Рисунок 5</translation>
    </message>
    <message>
        <source>顺时针</source>
        <translation>По часовой</translation>
    </message>
    <message>
        <source>逆时针</source>
        <translation>Против часовой</translation>
    </message>
    <message>
        <source>无</source>
        <translation>Нет</translation>
    </message>
</context>
<context>
    <name>ModuleEfSpeed</name>
    <message>
        <source>灯光速度</source>
        <translation>Скорость</translation>
    </message>
</context>
<context>
    <name>ModuleGenKeymapping</name>
    <message>
        <source>上一曲</source>
        <translation>Предыдущий трек</translation>
    </message>
    <message>
        <source>下一曲</source>
        <translation>Следующий трек</translation>
    </message>
    <message>
        <source>播放/暂停</source>
        <translation>Пуск/пауза</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>Стоп</translation>
    </message>
    <message>
        <source>静音</source>
        <translation>Без звука</translation>
    </message>
    <message>
        <source>音量+</source>
        <translation>Громкость&#xa0;+</translation>
    </message>
    <message>
        <source>音量-</source>
        <translation>Громкость&#xa0;−</translation>
    </message>
    <message>
        <source>播放器</source>
        <translation>Плеер</translation>
    </message>
    <message>
        <source>计算器</source>
        <translation>Калькулятор</translation>
    </message>
    <message>
        <source>邮件</source>
        <translation>Почта</translation>
    </message>
    <message>
        <source>我的电脑</source>
        <translation>Этот компьютер</translation>
    </message>
    <message>
        <source>搜索</source>
        <translation>Поиск</translation>
    </message>
    <message>
        <source>主页</source>
        <translation>Домашняя страница</translation>
    </message>
    <message>
        <source>后退</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>前进</source>
        <translation>Вперёд</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>Обновить</translation>
    </message>
    <message>
        <source>收藏</source>
        <translation>Избранное</translation>
    </message>
    <message>
        <source>亮度+</source>
        <translation>Яркость экрана&#xa0;+</translation>
    </message>
    <message>
        <source>亮度-</source>
        <translation>Яркость экрана&#xa0;−</translation>
    </message>
    <message>
        <source>放大</source>
        <translation>Увеличить</translation>
    </message>
    <message>
        <source>缩小</source>
        <translation>Уменьшить</translation>
    </message>
    <message>
        <source>呼出Siri</source>
        <translation>Вызвать Siri</translation>
    </message>
    <message>
        <source>切换输入法</source>
        <translation>Сменить раскладку</translation>
    </message>
    <message>
        <source>返回</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>Fn键锁屏</source>
        <translation>Блокировка Fn</translation>
    </message>
    <message>
        <source>锁屏</source>
        <translation>Блокировка экрана</translation>
    </message>
    <message>
        <source>R-Fn键</source>
        <translation>Клавиша R-Fn</translation>
    </message>
    <message>
        <source>DPI-Loop</source>
        <translation>DPI по кругу</translation>
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
        <translation>Питание</translation>
    </message>
    <message>
        <source>睡眠</source>
        <translation>Сон</translation>
    </message>
    <message>
        <source>唤醒</source>
        <translation>Пробуждение</translation>
    </message>
    <message>
        <source>Profile-Value</source>
        <translation>Значение профиля</translation>
    </message>
    <message>
        <source>Profile+</source>
        <translation>Профиль&#xa0;+</translation>
    </message>
    <message>
        <source>Profile-</source>
        <translation>Профиль&#xa0;−</translation>
    </message>
    <message>
        <source>Profile-Loop</source>
        <translation>Профили по кругу</translation>
    </message>
    <message>
        <source>Profile-1</source>
        <translation>Профиль 1</translation>
    </message>
    <message>
        <source>Profile-2</source>
        <translation>Профиль 2</translation>
    </message>
    <message>
        <source>Profile-3</source>
        <translation>Профиль 3</translation>
    </message>
    <message>
        <source>Profile-4</source>
        <translation>Профиль 4</translation>
    </message>
    <message>
        <source>Profile-5</source>
        <translation>Профиль 5</translation>
    </message>
    <message>
        <source>L-Fn键</source>
        <translation>Клавиша L-Fn</translation>
    </message>
    <message>
        <source>恢复出厂设置</source>
        <translation>Сброс к заводским</translation>
    </message>
    <message>
        <source>锁Win</source>
        <translation>Блокировка Win</translation>
    </message>
    <message>
        <source>切换Win</source>
        <translation>Режим Win</translation>
    </message>
    <message>
        <source>切换Mac</source>
        <translation>Режим Mac</translation>
    </message>
    <message>
        <source>系统切换</source>
        <translation>Сменить систему</translation>
    </message>
    <message>
        <source>Check Battery</source>
        <translation>Проверить заряд</translation>
    </message>
    <message>
        <source>WASD切换</source>
        <translation>Переключить WASD</translation>
    </message>
    <message>
        <source>Fn层切换</source>
        <translation>Переключить слой Fn</translation>
    </message>
    <message>
        <source>设备节能</source>
        <translation>Энергосбережение</translation>
    </message>
    <message>
        <source>APP CTRL切换</source>
        <translation>Переключить APP CTRL</translation>
    </message>
    <message>
        <source>背光开/关</source>
        <translation>Подсветка вкл/выкл</translation>
    </message>
    <message>
        <source>背光灯效循环</source>
        <translation>Эффекты по кругу</translation>
    </message>
    <message>
        <source>背光灯效+</source>
        <translation>Эффект&#xa0;+</translation>
    </message>
    <message>
        <source>背光灯效-</source>
        <translation>Эффект&#xa0;−</translation>
    </message>
    <message>
        <source>背光亮度循环</source>
        <translation>Яркость подсветки по кругу</translation>
    </message>
    <message>
        <source>背光亮度+</source>
        <translation>Яркость подсветки&#xa0;+</translation>
    </message>
    <message>
        <source>背光亮度-</source>
        <translation>Яркость подсветки&#xa0;−</translation>
    </message>
    <message>
        <source>背光速度循环</source>
        <translation>Скорость подсветки по кругу</translation>
    </message>
    <message>
        <source>背光速度-</source>
        <translation>Скорость подсветки&#xa0;−</translation>
    </message>
    <message>
        <source>背光速度+</source>
        <translation>Скорость подсветки&#xa0;+</translation>
    </message>
    <message>
        <source>背光方向循环</source>
        <translation>Направление подсветки по кругу</translation>
    </message>
    <message>
        <source>背光向左</source>
        <translation>Подсветка влево</translation>
    </message>
    <message>
        <source>背光向右</source>
        <translation>Подсветка вправо</translation>
    </message>
    <message>
        <source>背光颜色循环</source>
        <translation>Цвет подсветки по кругу</translation>
    </message>
    <message>
        <source>背光颜色+</source>
        <translation>Цвет подсветки&#xa0;+</translation>
    </message>
    <message>
        <source>背光颜色-</source>
        <translation>Цвет подсветки&#xa0;−</translation>
    </message>
    <message>
        <source>Use Pic 0</source>
        <translation>Рисунок 0</translation>
    </message>
    <message>
        <source>Use Pic 1</source>
        <translation>Рисунок 1</translation>
    </message>
    <message>
        <source>Use Pic 2</source>
        <translation>Рисунок 2</translation>
    </message>
    <message>
        <source>Use Pic 3</source>
        <translation>Рисунок 3</translation>
    </message>
    <message>
        <source>Use Pic 4</source>
        <translation>Рисунок 4</translation>
    </message>
    <message>
        <source>Use Pic</source>
        <translation>Рисунок</translation>
    </message>
    <message>
        <source>侧光开/关</source>
        <translation>Боковая подсветка вкл/выкл</translation>
    </message>
    <message>
        <source>侧光亮度循环</source>
        <translation>Яркость боковой подсветки по кругу</translation>
    </message>
    <message>
        <source>侧光速度循环</source>
        <translation>Скорость боковой подсветки по кругу</translation>
    </message>
    <message>
        <source>侧光速度+</source>
        <translation>Скорость боковой подсветки&#xa0;+</translation>
    </message>
    <message>
        <source>侧光速度-</source>
        <translation>Скорость боковой подсветки&#xa0;−</translation>
    </message>
    <message>
        <source>侧光颜色循环</source>
        <translation>Цвет боковой подсветки по кругу</translation>
    </message>
    <message>
        <source>侧光颜色+</source>
        <translation>Цвет боковой подсветки&#xa0;+</translation>
    </message>
    <message>
        <source>侧光颜色-</source>
        <translation>Цвет боковой подсветки&#xa0;−</translation>
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
        <translation>Кабель</translation>
    </message>
    <message>
        <source>有线-蓝牙-2.4G</source>
        <translation>Кабель-Bluetooth-2.4G</translation>
    </message>
    <message>
        <source>2.4G配对</source>
        <translation>Сопряжение 2.4G</translation>
    </message>
    <message>
        <source>蓝牙配对</source>
        <translation>Сопряжение Bluetooth</translation>
    </message>
    <message>
        <source>Insert键</source>
        <translation>Клавиша Insert</translation>
    </message>
    <message>
        <source>Print Screen键</source>
        <translation>Клавиша Print Screen</translation>
    </message>
    <message>
        <source>左键单击</source>
        <translation>Левый клик</translation>
    </message>
    <message>
        <source>右键单击</source>
        <translation>Правый клик</translation>
    </message>
    <message>
        <source>中键按下</source>
        <translation>Клик колёсиком</translation>
    </message>
    <message>
        <source>光标前进</source>
        <translation>Мышь вперёд</translation>
    </message>
    <message>
        <source>光标后退</source>
        <translation>Мышь назад</translation>
    </message>
    <message>
        <source>滚轮-向左</source>
        <translation>Колесо влево</translation>
    </message>
    <message>
        <source>滚轮-向右</source>
        <translation>Колесо вправо</translation>
    </message>
    <message>
        <source>滚轮-向上</source>
        <translation>Колесо вверх</translation>
    </message>
    <message>
        <source>滚轮-向下</source>
        <translation>Колесо вниз</translation>
    </message>
    <message>
        <source>向上滚屏</source>
        <translation>Прокрутка вверх</translation>
    </message>
    <message>
        <source>向下滚屏</source>
        <translation>Прокрутка вниз</translation>
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
        <translation>Макросы</translation>
    </message>
    <message>
        <source>功能</source>
        <translation>Функция</translation>
    </message>
    <message>
        <source>鼠标</source>
        <translation>Мышь</translation>
    </message>
    <message>
        <source>组合</source>
        <translation>Комбинация</translation>
    </message>
</context>
<context>
    <name>ModuleGeneralMasker</name>
    <message>
        <source>对话框</source>
        <translation>Диалог</translation>
    </message>
</context>
<context>
    <name>ModuleKeyboard</name>
    <message>
        <source>屏幕键盘</source>
        <translation>Экранная клавиатура</translation>
    </message>
    <message>
        <source>已选中按键</source>
        <translation>Выбранная клавиша</translation>
    </message>
    <message>
        <source>已修改按键</source>
        <translation>Изменённая клавиша</translation>
    </message>
    <message>
        <source>已禁用按键</source>
        <translation>Отключённая клавиша</translation>
    </message>
    <message>
        <source>取消禁用</source>
        <translation>Включить клавишу</translation>
    </message>
    <message>
        <source>清除设置</source>
        <translation>Сбросить</translation>
    </message>
    <message>
        <source>禁用按键</source>
        <translation>Отключить клавишу</translation>
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
        <translation>Срабатывание (мм)</translation>
    </message>
    <message>
        <source>抬起(mm)</source>
        <translation>Отпускание (мм)</translation>
    </message>
    <message>
        <source>%1(mm)</source>
        <translation>%1 (мм)</translation>
    </message>
</context>
<context>
    <name>ModuleMTTab</name>
    <message>
        <source>选定上方键位，可通过选择单击及长按两种触发模式，设置两个功能（支持组合键）</source>
        <translation>Выберите клавишу выше и задайте ей две функции: на нажатие и на удержание (можно комбинации)</translation>
    </message>
    <message>
        <source>单击</source>
        <translation>Нажатие</translation>
    </message>
    <message>
        <source>按住</source>
        <translation>Удержание</translation>
    </message>
    <message>
        <source>调整触发“按住&quot;键所需的时间</source>
        <translation>Время удержания до срабатывания «Удержания»</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>按住超过这段时间才执行“按住”的功能</source>
        <translation>Если держать клавишу дольше, сработает функция «Удержание»</translation>
    </message>
</context>
<context>
    <name>ModuleMacroManager</name>
    <message>
        <source>新建宏</source>
        <translation>Новый макрос </translation>
    </message>
</context>
<context>
    <name>ModuleRtSet</name>
    <message>
        <source>RT行程设置(全局)</source>
        <translation>Чувствительность RT (все клавиши)</translation>
    </message>
</context>
<context>
    <name>ModuleScrollValue</name>
    <message>
        <source>数值滚轮</source>
        <translation>Колесо значений</translation>
    </message>
</context>
<context>
    <name>ModuleSnapTab</name>
    <message>
        <source>绑定2个选定按键(分别从上面选择)，当两个按键被同时按下时，以最后按下的按键为准</source>
        <translation>Связывает 2 клавиши (выберите каждую выше): если зажаты обе, действует нажатая последней (SOCD)</translation>
    </message>
    <message>
        <source>选择A键</source>
        <translation>Выбрать клавишу A</translation>
    </message>
    <message>
        <source>选择B键</source>
        <translation>Выбрать клавишу B</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>ОК</translation>
    </message>
</context>
<context>
    <name>ModuleTGLTab</name>
    <message>
        <source>选定上方键位，可通过选择连点及长按两种触发模式，设置两个功能</source>
        <translation>Выберите клавишу выше и задайте функцию в одном из двух режимов: повтор или удержание</translation>
    </message>
    <message>
        <source>连点</source>
        <translation>Повтор</translation>
    </message>
    <message>
        <source>长按</source>
        <translation>Удержание</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>未设置功能</source>
        <translation>Не задано</translation>
    </message>
</context>
<context>
    <name>ModuleVideoItem</name>
    <message>
        <source>Movie</source>
        <translation>Видео</translation>
    </message>
    <message>
        <source>Orbe 7090 操作指南-宏设置</source>
        <translation>Руководство Orbe 7090: макросы</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Select All</source>
        <translation>В&amp;ыделить всё</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>&amp;Увеличить</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>У&amp;меньшить</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Отменить</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Повторить</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Вырезать</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Копировать</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>Вст&amp;авить</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Выделить всё</translation>
    </message>
</context>
<context>
    <name>ShellNotices</name>
    <message>
        <source>重试</source>
        <translation>Повторить</translation>
    </message>
</context>
<context>
    <name>StabilityPage</name>
    <message>
        <source>RT Stab(RT 增稳算法)</source>
        <translation>RT Stab (стабилизация RT)</translation>
    </message>
    <message>
        <source>RT Stab打开后，算法会介入增强轴体底部的稳定性。介入百分比越大，稳定性越强，延迟也会有所增加。</source>
        <translation>RT Stab повышает стабильность в нижней части хода. Чем больше процент, тем стабильнее, но задержка немного растёт.</translation>
    </message>
    <message>
        <source>0%(关闭)</source>
        <translation>0% (выкл.)</translation>
    </message>
    <message>
        <source>防误触模式</source>
        <translation>Защита от ложных нажатий</translation>
    </message>
    <message>
        <source>(已关闭)</source>
        <translation>(Выкл.)</translation>
    </message>
    <message>
        <source>防止极限性能下桌面抖动误触发或轴体公差可能造成还有0.1mm的行程公差。开启后优化底部按键算法补足行程差值提高键盘稳定性。</source>
        <translation>Защищает от срабатываний из-за вибрации стола на предельных настройках и от допусков свитчей до 0,1 мм. При включении алгоритм внизу хода компенсирует разницу и делает клавиатуру стабильнее.</translation>
    </message>
    <message>
        <source>已开启</source>
        <translation>Вкл.</translation>
    </message>
    <message>
        <source>已关闭</source>
        <translation>Выкл.</translation>
    </message>
</context>
<context>
    <name>SwitchTypePage</name>
    <message>
        <source>轴体设置</source>
        <translation>Тип свитчей</translation>
    </message>
    <message>
        <source>更换键盘轴体后，选择对应轴体的按键，点击下方对应的轴体选项进行设置来区分不同轴体</source>
        <translation>После замены свитчей выберите ниже нужный тип и щёлкните по клавишам, где он стоит</translation>
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
        <translation>Тумблер</translation>
    </message>
</context>
<context>
    <name>TravelPage</name>
    <message>
        <source>单独设置按下抬起触发行程：</source>
        <translation>Срабатывание и отпускание раздельно:</translation>
    </message>
    <message>
        <source>全程连续快速触发（RT）</source>
        <translation>Непрерывный Rapid Trigger (RT)</translation>
    </message>
    <message>
        <source>启用时，快速触发在您完全松开按键时才会终止。
禁用时，松开按键到轴体触发行程后终止快速触发</source>
        <translation>Вкл.: Rapid Trigger завершается только при полном отпускании клавиши.
Выкл.: Rapid Trigger завершается, когда клавиша поднимается выше точки срабатывания</translation>
    </message>
    <message>
        <source>单独设置按键再次按下触发和松开重置行程</source>
        <translation>Ход RT при нажатии и отпускании раздельно</translation>
    </message>
    <message>
        <source>再次按下按键触发所需的行程(mm)</source>
        <translation>Ход до повторного срабатывания (мм)</translation>
    </message>
    <message>
        <source>松开按键重置所需的行程(mm)</source>
        <translation>Ход до сброса при отпускании (мм)</translation>
    </message>
    <message>
        <source>设置</source>
        <translation>Применить</translation>
    </message>
    <message>
        <source>抬起后再按下这段距离即再次触发，越小越灵敏</source>
        <translation>Нажатие на это расстояние из любого положения снова срабатывает: чем меньше, тем чувствительнее</translation>
    </message>
    <message>
        <source>按下后抬起这段距离即释放，越小越灵敏</source>
        <translation>Подъём на это расстояние из любого положения отпускает клавишу: чем меньше, тем чувствительнее</translation>
    </message>
    <message>
        <source>按键按到多深时触发</source>
        <translation>На какой глубине срабатывает клавиша</translation>
    </message>
    <message>
        <source>按键抬到多高时释放</source>
        <translation>На какой высоте клавиша отпускается</translation>
    </message>
</context>
<context>
    <name>TravelRuler</name>
    <message>
        <source>行程测试</source>
        <translation>Тест хода</translation>
    </message>
</context>
<context>
    <name>WorkMeter</name>
    <message>
        <source>正在读取键盘</source>
        <translation>Чтение клавиатуры</translation>
    </message>
    <message>
        <source>正在写入键盘</source>
        <translation>Запись в клавиатуру</translation>
    </message>
</context>
</TS>
