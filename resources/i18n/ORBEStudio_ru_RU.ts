<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="zh_CN">
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
    <name>DemoDesk</name>
    <message>
        <source>虚拟设备</source>
        <translation>Виртуальные устройства</translation>
    </message>
    <message>
        <source>插入或拔出虚拟设备：</source>
        <translation>Подключить или отключить виртуальные устройства:</translation>
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
        <translation>Магнитные переключатели</translation>
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
        <translation>Калибровка хода</translation>
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
        <translation>Мои устройства</translation>
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
        <translation>Громкость +</translation>
    </message>
    <message>
        <source>音量-</source>
        <translation>Громкость -</translation>
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
        <translation>Мой компьютер</translation>
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
        <translation>Яркость экрана +</translation>
    </message>
    <message>
        <source>亮度-</source>
        <translation>Яркость экрана -</translation>
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
        <translation>Эффект +</translation>
    </message>
    <message>
        <source>背光灯效-</source>
        <translation>Эффект -</translation>
    </message>
    <message>
        <source>背光亮度循环</source>
        <translation>Яркость подсветки по кругу</translation>
    </message>
    <message>
        <source>背光亮度+</source>
        <translation>Яркость подсветки +</translation>
    </message>
    <message>
        <source>背光亮度-</source>
        <translation>Яркость подсветки -</translation>
    </message>
    <message>
        <source>背光速度循环</source>
        <translation>Скорость подсветки по кругу</translation>
    </message>
    <message>
        <source>背光速度-</source>
        <translation>Скорость подсветки -</translation>
    </message>
    <message>
        <source>背光速度+</source>
        <translation>Скорость подсветки +</translation>
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
        <translation>Цвет подсветки +</translation>
    </message>
    <message>
        <source>背光颜色-</source>
        <translation>Цвет подсветки -</translation>
    </message>
    <message>
        <source>Use Pic 0</source>
        <translation>Картинка 0</translation>
    </message>
    <message>
        <source>Use Pic 1</source>
        <translation>Картинка 1</translation>
    </message>
    <message>
        <source>Use Pic 2</source>
        <translation>Картинка 2</translation>
    </message>
    <message>
        <source>Use Pic 3</source>
        <translation>Картинка 3</translation>
    </message>
    <message>
        <source>Use Pic 4</source>
        <translation>Картинка 4</translation>
    </message>
    <message>
        <source>Use Pic</source>
        <translation>Картинка</translation>
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
        <translation>Скорость боковой подсветки +</translation>
    </message>
    <message>
        <source>侧光速度-</source>
        <translation>Скорость боковой подсветки -</translation>
    </message>
    <message>
        <source>侧光颜色循环</source>
        <translation>Цвет боковой подсветки по кругу</translation>
    </message>
    <message>
        <source>侧光颜色+</source>
        <translation>Цвет боковой подсветки +</translation>
    </message>
    <message>
        <source>侧光颜色-</source>
        <translation>Цвет боковой подсветки -</translation>
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
        <translation>Средний клик</translation>
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
    <name>ModuleScrollValue</name>
    <message>
        <source>数值滚轮</source>
        <translation>Колесо значений</translation>
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
        <translation>Руководство Orbe 7090: макросы</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Да</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Нет</translation>
    </message>
</context>
<context>
    <name>ToggleButton</name>
    <message>
        <source>开关</source>
        <translation>Переключатель</translation>
    </message>
</context>
</TS>
