// What the virtual keyboards' light looks like.

#include "LightShow.h"

#include <QtTest>
#include <set>

using namespace std::chrono_literals;
using sim::Byte;
using sim::Colour;
using sim::LightView;

Q_DECLARE_METATYPE(sim::LedParams)

namespace {

constexpr int Columns = 15;
constexpr int Rows = 6;
constexpr Byte ManyColours = 7;
constexpr Byte OwnColour = 8;

std::vector<sim::KeySpot> grid()
{
    std::vector<sim::KeySpot> spots;
    for (int position = 0; position < Columns * Rows; ++position)
        spots.push_back({position, position / Rows + 0.5, position % Rows + 0.5});
    return spots;
}

constexpr int at(int column, int row)
{
    return column * Rows + row;
}

int brightness(const Colour &colour)
{
    return *std::ranges::max_element(colour);
}

/// A light that is looked at thirty times a second.
struct Stage
{
    sim::LightShow show{grid()};
    LightView view{.on = true, .keys = {}, .side = {}};
    sim::KeySet pressed;
    sim::TimePoint now{1h};

    std::vector<Colour> after(std::chrono::milliseconds time)
    {
        for (const auto end = now + time; now < end; now += 33ms)
            show.advance(view, pressed, now);
        return {show.keys().begin(), show.keys().end()};
    }
};

} // namespace

class TestLightShow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void picksColour_data();
    void picksColour();
    void everyEffectPlays();
    void answersToKeys_data();
    void answersToKeys();
};

void TestLightShow::picksColour_data()
{
    QTest::addColumn<sim::LedParams>("params");
    QTest::addColumn<Colour>("colour");
    QTest::newRow("own colour") << sim::LedParams{1, 2, 4, OwnColour, 10, 200, 30} << Colour{10, 200, 30};
    QTest::newRow("brighter than can be")
        << sim::LedParams{1, 2, 9, OwnColour, 10, 20, 30} << Colour{10, 20, 30};
    QTest::newRow("system colour") << sim::LedParams{1, 2, 4, 5, 9, 9, 9} << Colour{255, 128, 0};
    QTest::newRow("unknown effect") << sim::LedParams{200, 2, 4, OwnColour, 10, 20, 30} << Colour{};
}

void TestLightShow::picksColour()
{
    QFETCH(sim::LedParams, params);
    QFETCH(Colour, colour);
    Stage stage;
    stage.view.keys = params;
    const auto keys = stage.after(100ms);
    QVERIFY(std::ranges::all_of(keys, [&colour](const Colour &key) { return key == colour; }));
    stage.view.on = false;
    QCOMPARE(stage.after(100ms).front(), Colour{});
}

/// Without a key pressed: it lights, it changes all the time, and it keeps to the brightness.
void TestLightShow::everyEffectPlays()
{
    for (const Byte effect : {2, 3, 4, 6, 7, 9, 10, 11, 12, 15, 16, 17, 18, 21, 23}) {
        Stage stage;
        stage.view.keys = {effect, 2, 2, ManyColours, 0, 0, 0};
        std::set<std::vector<Colour>> pictures;
        int brightest = 0;
        for (int i = 0; i < 20; ++i) {
            const auto keys = stage.after(300ms);
            pictures.insert(keys);
            for (const Colour &key : keys)
                brightest = std::max(brightest, brightness(key));
        }
        QVERIFY2(pictures.size() > 15, qPrintable(QString::number(effect)));
        QVERIFY2(brightest > 90 && brightest <= 128, qPrintable(QString::number(effect)));
    }
}

void TestLightShow::answersToKeys_data()
{
    QTest::addColumn<Byte>("effect");
    QTest::addColumn<bool>("spreads");
    QTest::newRow("shadow") << Byte{8} << false;
    QTest::newRow("two birds") << Byte{14} << true;
    QTest::newRow("layers") << Byte{24} << true;
}

void TestLightShow::answersToKeys()
{
    QFETCH(Byte, effect);
    QFETCH(bool, spreads);
    Stage stage;
    stage.view.keys = {effect, 2, 4, OwnColour, 255, 255, 255};
    const std::vector<Colour> dark(Columns * Rows);
    QCOMPARE(stage.after(3s), dark);
    QVERIFY(!stage.show.moves());
    const std::size_t key = at(7, 3);
    stage.pressed.set(key);
    QVERIFY(brightness(stage.after(33ms)[key]) > 150);
    const auto later = stage.after(400ms);
    QCOMPARE(brightness(later[at(4, 3)]) + brightness(later[at(11, 3)]) > 0, spreads);
    QVERIFY(stage.show.moves());
    stage.pressed.reset();
    QCOMPARE(stage.after(4s), dark);
    QVERIFY(!stage.show.moves());
}

QTEST_APPLESS_MAIN(TestLightShow)
#include "tst_lightshow.moc"
