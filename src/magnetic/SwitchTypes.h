#pragma once

#include <array>
#include <QRgb>
#include <QString>
#include <QtGlobal>

/// The kinds of switches that a keyboard can be told to hold.
namespace switchtypes {

struct SwitchType
{
    quint8 id;
    QRgb color;
    const char *name; ///< to be translated as a text of FrameMagic
};

inline constexpr std::array All{
    SwitchType{0, 0x9B9B9B, QT_TRANSLATE_NOOP("FrameMagic", "高特")},
    SwitchType{1, 0x7969F3, QT_TRANSLATE_NOOP("FrameMagic", "磁玉")},
    SwitchType{2, 0xF369A7, QT_TRANSLATE_NOOP("FrameMagic", "磁玉pro")},
    SwitchType{3, 0xC7D827, QT_TRANSLATE_NOOP("FrameMagic", "磁玉gaming")},
    SwitchType{4, 0xFF8E32, QT_TRANSLATE_NOOP("FrameMagic", "天王")},
    SwitchType{5, 0xFF6BF3, QT_TRANSLATE_NOOP("FrameMagic", "万磁王")},
    SwitchType{7, 0x6B9CFF, QT_TRANSLATE_NOOP("FrameMagic", "机械轴")},
    SwitchType{15, 0x2E2EB9, QT_TRANSLATE_NOOP("FrameMagic", "凯华轴")},
    SwitchType{24, 0x6969F3, QT_TRANSLATE_NOOP("FrameMagic", "星引力")},
    SwitchType{25, 0x2FC1FF, QT_TRANSLATE_NOOP("FrameMagic", "炫光")},
    SwitchType{31, 0x870339, QT_TRANSLATE_NOOP("FrameMagic", "闪电")},
    SwitchType{63, 0x206599, QT_TRANSLATE_NOOP("FrameMagic", "星耀")},
    //: 冠泰轴
    SwitchType{71, 0xFF6D6B, QT_TRANSLATE_NOOP("FrameMagic", "矮磁轴")},
    SwitchType{72, 0x363636, QT_TRANSLATE_NOOP("FrameMagic", "星芒磁轴")},
    SwitchType{95, 0x2258A9, QT_TRANSLATE_NOOP("FrameMagic", "白泽轴")},
    SwitchType{118, 0x149819, QT_TRANSLATE_NOOP("FrameMagic", "自定义")},
};

/// The type with an id, null if none has it.
const SwitchType *find(quint8 id);

/// The type that a key with this id is shown as: that of the id, or the first one.
const SwitchType &shownFor(quint8 id);

} // namespace switchtypes
