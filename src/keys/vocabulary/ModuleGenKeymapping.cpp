#include "ModuleGenKeymapping.h"

#include "KeyNameTable.h"

#include <algorithm>

using namespace KeyKind;

constexpr std::array<KeyFunction, 98> ModuleGenKeymapping::FunctionKeyList = std::to_array<KeyFunction>({
    {{Consumer, 0x00, 0xB6, 0x00}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "上一曲")},
    {{Consumer, 0x00, 0xB5, 0x00}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "下一曲")},
    {{Consumer, 0x00, 0xCD, 0x00}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "播放/暂停")},
    {{Consumer, 0x00, 0xB7, 0x00}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "停止")},
    {{Consumer, 0x00, 0xE2, 0x00}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "静音")},
    {{Consumer, 0x00, 0xE9, 0x00}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "音量+")},
    {{Consumer, 0x00, 0xEA, 0x00}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "音量-")},
    {{Consumer, 0x00, 0x83, 0x01}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "播放器")},
    {{Consumer, 0x00, 0x92, 0x01}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "计算器")},
    {{Consumer, 0x00, 0x8A, 0x01}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "邮件")},
    {{Consumer, 0x00, 0x94, 0x01}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "我的电脑")},
    {{Consumer, 0x00, 0x21, 0x02}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "搜索")},
    {{Consumer, 0x00, 0x23, 0x02}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "主页")},
    {{Consumer, 0x00, 0x24, 0x02}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "后退")},
    {{Consumer, 0x00, 0x25, 0x02}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "前进")},
    {{Consumer, 0x00, 0x26, 0x02}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "停止")},
    {{Consumer, 0x00, 0x27, 0x02}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "刷新")},
    {{Consumer, 0x00, 0x2A, 0x02}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "收藏")},
    {{Consumer, 0x00, 0x6F, 0x00}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "亮度+")},
    {{Consumer, 0x00, 0x70, 0x00}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "亮度-")},
    {{Keys, 0x00, 0xE3, 0x2E}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "放大")},
    {{Keys, 0x00, 0xE3, 0x2D}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "缩小")},
    {{Assistant, 0x00, 0xE3, 0x2C}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "呼出Siri")},
    {{Keys, 0xE0, 0x2C, 0x00}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "切换输入法")},
    {{Consumer, 0x00, 0x24, 0x02}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "返回")},
    {{Keyboard, 0x0D, 0x00, 0x00}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "Fn键锁屏")},
    {{Keys, 0x00, 0xE3, 0x0F}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "锁屏")},
    {{Keyboard, 0x01, 0x01, 0x00}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "R-Fn键")},
    {{Dpi, 0x00, 0x00, 0x00}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "DPI-Loop")},
    {{Dpi, 0x00, 0x01, 0x00}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "DPI+")},
    {{Dpi, 0x00, 0x02, 0x00}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "DPI-")},
    {{Dpi, 0x00, 0x04, 0x00}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "DPI-Shift")},
    {{Power, 0x81, 0x00, 0x00}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "电源")},
    {{Power, 0x82, 0x00, 0x00}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "睡眠")},
    {{Power, 0x83, 0x00, 0x00}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "唤醒")},
    {{Profile, 0x00, 0x00, 0x00}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "Profile-Value")},
    {{Profile, 0x00, 0x01, 0x00}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "Profile+")},
    {{Profile, 0x00, 0x02, 0x00}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "Profile-")},
    {{Profile, 0x00, 0x03, 0x00}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "Profile-Loop")},
    {{Profile, 0x00, 0x04, 0x00}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "Profile-1")},
    {{Profile, 0x00, 0x04, 0x01}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "Profile-2")},
    {{Profile, 0x00, 0x04, 0x02}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "Profile-3")},
    {{Profile, 0x00, 0x04, 0x03}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "Profile-4")},
    {{Profile, 0x00, 0x04, 0x04}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "Profile-5")},
    {{Keyboard, 0x01, 0x00, 0x00}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "L-Fn键")},
    {{Keyboard, 0x02, 0x00, 0x00}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "恢复出厂设置")},
    {{Keyboard, 0x03, 0x00, 0x00}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "锁Win")},
    {{Keyboard, 0x05, 0x00, 0x00}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "切换Win")},
    {{Keyboard, 0x05, 0x01, 0x00}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "切换Mac")},
    {{Keyboard, 0x05, 0x03, 0x00}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "系统切换")},
    {{Keyboard, 0x08, 0x00, 0x00}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "Check Battery")},
    {{Keyboard, 0x0A, 0x00, 0x00}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "WASD切换")},
    {{Keyboard, 0x0B, 0x00, 0x00}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "Fn层切换")},
    {{Keyboard, 0x0C, 0x00, 0x00}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "设备节能")},
    {{Keyboard, 0x17, 0x00, 0x00}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "APP CTRL切换")},
    {{Light, 0x00, 0x00, 0x00}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "背光开/关")},
    {{Light, 0x01, 0x00, 0x00}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "背光灯效循环")},
    {{Light, 0x01, 0x01, 0x00}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "背光灯效+")},
    {{Light, 0x01, 0x02, 0x00}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "背光灯效-")},
    {{Light, 0x02, 0x00, 0x00}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "背光亮度循环")},
    {{Light, 0x02, 0x01, 0x00}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "背光亮度+")},
    {{Light, 0x02, 0x02, 0x00}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "背光亮度-")},
    {{Light, 0x03, 0x00, 0x00}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "背光速度循环")},
    {{Light, 0x03, 0x01, 0x00}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "背光速度-")},
    {{Light, 0x03, 0x02, 0x00}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "背光速度+")},
    {{Light, 0x05, 0x00, 0x00}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "背光方向循环")},
    {{Light, 0x05, 0x00, 0x01}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "背光向左")},
    {{Light, 0x05, 0x00, 0x02}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "背光向右")},
    {{Light, 0x05, 0x01, 0x00}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "背光颜色循环")},
    {{Light, 0x05, 0x01, 0x01}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "背光颜色+")},
    {{Light, 0x05, 0x01, 0x02}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "背光颜色-")},
    {{Light, 0x06, 0x00, 0x00}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "Use Pic 0")},
    {{Light, 0x06, 0x01, 0x00}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "Use Pic 1")},
    {{Light, 0x06, 0x02, 0x00}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "Use Pic 2")},
    {{Light, 0x06, 0x03, 0x00}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "Use Pic 3")},
    {{Light, 0x06, 0x04, 0x00}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "Use Pic 4")},
    {{Light, 0x06, 0x80, 0x00}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "Use Pic")},
    {{Light, 0x08, 0x00, 0x00}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "侧光开/关")},
    {{Light, 0x08, 0x01, 0x00}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "侧光亮度循环")},
    {{Light, 0x08, 0x02, 0x00}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "侧光速度循环")},
    {{Light, 0x08, 0x02, 0x01}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "侧光速度+")},
    {{Light, 0x08, 0x02, 0x02}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "侧光速度-")},
    {{Light, 0x08, 0x03, 0x00}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "侧光颜色循环")},
    {{Light, 0x08, 0x03, 0x01}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "侧光颜色+")},
    {{Light, 0x08, 0x03, 0x02}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "侧光颜色-")},
    {{Light, 0x08, 0x04, 0x00}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "侧光颜色循环")},
    {{Light, 0x08, 0x04, 0x01}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "侧光颜色+")},
    {{Light, 0x08, 0x04, 0x02}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "侧光颜色-")},
    {{Link, 0x00, 0x00, 0x00}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "2.4G")},
    {{Link, 0x00, 0x01, 0x00}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "蓝牙1")},
    {{Link, 0x00, 0x02, 0x00}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "蓝牙2")},
    {{Link, 0x00, 0x03, 0x00}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "蓝牙3")},
    {{Link, 0x00, 0x04, 0x00}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "有线")},
    {{Link, 0x00, 0x05, 0x00}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "有线-蓝牙-2.4G")},
    {{Link, 0x01, 0x00, 0x00}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "2.4G配对")},
    {{Link, 0x01, 0x01, 0x00}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "蓝牙配对")},
    {{Keys, 0x00, 0x49, 0x00}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "Insert键")},
    {{Keys, 0x00, 0x46, 0x00}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "Print Screen键")},
});

constexpr std::array<KeyFunction, 15> ModuleGenKeymapping::MouseKeyList = std::to_array<KeyFunction>({
    {{Mouse, 0x00, 0xF0, 0x00}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "左键单击")},
    {{Mouse, 0x00, 0xF1, 0x00}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "右键单击")},
    {{Mouse, 0x00, 0xF2, 0x00}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "中键按下")},
    {{Mouse, 0x00, 0xF3, 0x00}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "光标前进")},
    {{Mouse, 0x00, 0xF4, 0x00}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "光标后退")},
    {{Mouse, 0x00, 0xF5, 0x00}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "滚轮-向左")},
    {{Mouse, 0x00, 0xF6, 0x00}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "滚轮-向右")},
    {{Mouse, 0x00, 0xF7, 0x00}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "滚轮-向上")},
    {{Mouse, 0x00, 0xF8, 0x00}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "滚轮-向下")},
    {{Mouse, 0x00, 0xF5, 0x01}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "向上滚屏")},
    {{Mouse, 0x00, 0xF5, 0xFF}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "向下滚屏")},
    {{Mouse, 0x00, 0xF6, 0xFB}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "XUP")},
    {{Mouse, 0x00, 0xF6, 0x05}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "XDOWN")},
    {{Mouse, 0x00, 0xF7, 0xFB}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "YUP")},
    {{Mouse, 0x00, 0xF7, 0x05}, QT_TRANSLATE_NOOP("ModuleGenKeymapping", "YDOWN")},
});

namespace {

template <std::size_t N>
const KeyFunction *rowAt(const std::array<KeyFunction, N> &list, quint8 row)
{
    return row < N ? &list[row] : nullptr;
}

template <std::size_t N>
const KeyFunction *firstWith(const std::array<KeyFunction, N> &list, const KeyEntry &entry)
{
    const auto row = std::ranges::find(list, entry, &KeyFunction::entry);
    return row == list.end() ? nullptr : &*row;
}

/// The keys of a combination, such as "L-Ctrl + A"; empty if the first one has no name. The kind
/// is deliberately not looked at: an entry that no list holds reads as a combination.
QString combinationText(const KeyEntry &entry)
{
    QString text = keys::KeyNameByCode(entry.bytes[1]);
    if (text.isEmpty())
        return text;
    for (const quint8 usage : {entry.bytes[2], entry.bytes[3]}) {
        const QString name = keys::KeyNameByCode(usage);
        if (!name.isEmpty())
            text += QStringLiteral(" + ") + name;
    }
    return text;
}

} // namespace

QString KeyFunction::name() const
{
    return QCoreApplication::translate("ModuleGenKeymapping", sourceName);
}

const KeyFunction *ModuleGenKeymapping::FunctionEntryAt(quint8 row)
{
    return rowAt(FunctionKeyList, row);
}

const KeyFunction *ModuleGenKeymapping::MouseEntryAt(quint8 row)
{
    return rowAt(MouseKeyList, row);
}

QString ModuleGenKeymapping::KeyEntryText(const KeyEntry &entry, bool prefix)
{
    const QString separator = QStringLiteral(": ");
    if (entry.isEmpty())
        return {};
    if (entry.kind() == Macro)
        return tr("宏设置");
    if (const KeyFunction *function = firstWith(FunctionKeyList, entry))
        return tr("功能") + separator + function->name();
    if (const KeyFunction *mouse = firstWith(MouseKeyList, entry))
        return tr("鼠标") + separator + mouse->name();

    const QString combination = combinationText(entry);
    return prefix && !combination.isEmpty() ? tr("组合") + separator + combination : combination;
}
