#pragma once

#include <array>
#include <QtGlobal>

/// The light effects in the order of the list on screen.
struct Effect
{
    const char *name; ///< to be translated in the context ModuleEfMode
    quint8 id;        ///< as the keyboard counts
};

// clang-format off
inline constexpr std::array EffectCatalogue{
    Effect{QT_TRANSLATE_NOOP("ModuleEfMode", "常亮"), 1},
    Effect{QT_TRANSLATE_NOOP("ModuleEfMode", "呼吸"), 2},
    Effect{QT_TRANSLATE_NOOP("ModuleEfMode", "流星"), 18},
    Effect{QT_TRANSLATE_NOOP("ModuleEfMode", "涟漪"), 5},
    Effect{QT_TRANSLATE_NOOP("ModuleEfMode", "极光"), 23},
    Effect{QT_TRANSLATE_NOOP("ModuleEfMode", "雨滴"), 17},
    Effect{QT_TRANSLATE_NOOP("ModuleEfMode", "聚合"), 9},
    Effect{QT_TRANSLATE_NOOP("ModuleEfMode", "川流不息"), 7},
    Effect{QT_TRANSLATE_NOOP("ModuleEfMode", "霓虹"), 3},
    Effect{QT_TRANSLATE_NOOP("ModuleEfMode", "光波"), 4},
    Effect{QT_TRANSLATE_NOOP("ModuleEfMode", "繁星点点"), 6},
    Effect{QT_TRANSLATE_NOOP("ModuleEfMode", "如影随形"), 8},
    Effect{QT_TRANSLATE_NOOP("ModuleEfMode", "正弦波"), 10},
    Effect{QT_TRANSLATE_NOOP("ModuleEfMode", "彩泉涌动"), 11},
    Effect{QT_TRANSLATE_NOOP("ModuleEfMode", "百花争艳"), 12},
    Effect{QT_TRANSLATE_NOOP("ModuleEfMode", "一石二鸟"), 14},
    Effect{QT_TRANSLATE_NOOP("ModuleEfMode", "峰回路转"), 15},
    Effect{QT_TRANSLATE_NOOP("ModuleEfMode", "斜风细雨"), 16},
    Effect{QT_TRANSLATE_NOOP("ModuleEfMode", "踏雪无痕"), 19},
    Effect{QT_TRANSLATE_NOOP("ModuleEfMode", "层出不穷"), 24},
    Effect{QT_TRANSLATE_NOOP("ModuleEfMode", "光影"), 21},
    Effect{QT_TRANSLATE_NOOP("ModuleEfMode", "音乐律动"), 22},
    Effect{QT_TRANSLATE_NOOP("ModuleEfMode", "自定义"), 13},
};

/// The ways in which an effect can play. Those that aren't here have only one.
struct EffectOptions
{
    quint8 effect;
    std::array<const char *, 5> texts; ///< null past the last; translated as the names
};

inline constexpr std::array EffectOptionTable{
    EffectOptions{4,  {QT_TRANSLATE_NOOP("ModuleEfMode", "左"), QT_TRANSLATE_NOOP("ModuleEfMode", "右"),
                       QT_TRANSLATE_NOOP("ModuleEfMode", "上"), QT_TRANSLATE_NOOP("ModuleEfMode", "下")}},
    EffectOptions{7,  {QT_TRANSLATE_NOOP("ModuleEfMode", "Z形"), QT_TRANSLATE_NOOP("ModuleEfMode", "回形")}},
    EffectOptions{11, {QT_TRANSLATE_NOOP("ModuleEfMode", "向内"), QT_TRANSLATE_NOOP("ModuleEfMode", "向外")}},
    EffectOptions{12, {QT_TRANSLATE_NOOP("ModuleEfMode", "向右"), QT_TRANSLATE_NOOP("ModuleEfMode", "向左")}},
    EffectOptions{13, {QT_TRANSLATE_NOOP("ModuleEfMode", "图案1"), QT_TRANSLATE_NOOP("ModuleEfMode", "图案2"),
                       QT_TRANSLATE_NOOP("ModuleEfMode", "图案3"), QT_TRANSLATE_NOOP("ModuleEfMode", "图案4"),
                       QT_TRANSLATE_NOOP("ModuleEfMode", "图案5")}},
    EffectOptions{15, {QT_TRANSLATE_NOOP("ModuleEfMode", "顺时针"), QT_TRANSLATE_NOOP("ModuleEfMode", "逆时针")}},
};
// clang-format on
