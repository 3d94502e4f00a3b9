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
    void everyEffectPlays_data();
    void everyEffectPlays();
    void standsStill();
    void speedBendsTheRun();
    void goesTheChosenWay_data();
    void goesTheChosenWay();
    void answersToKeys_data();
    void answersToKeys();
    void showsPicture();
    void showsMusic();
    void playsStrip();
};

void TestLightShow::picksColour_data()
{
    QTest::addColumn<sim::LedParams>("params");
    QTest::addColumn<Colour>("colour");
    QTest::newRow("own colour") << sim::LedParams{1, 2, 4, OwnColour, 10, 200, 30} << Colour{10, 200, 30};
    QTest::newRow("half as bright") << sim::LedParams{1, 2, 2, OwnColour, 10, 200, 30} << Colour{5, 100, 15};
    QTest::newRow("dark") << sim::LedParams{1, 2, 0, OwnColour, 10, 200, 30} << Colour{};
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

void TestLightShow::everyEffectPlays_data()
{
    QTest::addColumn<sim::LedParams>("params");
    for (const Byte effect : {2, 3, 4, 6, 7, 9, 10, 11, 12, 15, 16, 17, 18, 21, 23})
        QTest::addRow("%d", effect) << sim::LedParams{effect, 2, 2, ManyColours, 0, 0, 0};
    for (const Byte effect : {2, 4, 6, 7, 9, 10, 11, 12, 15, 16, 17, 18, 21, 23})
        QTest::addRow("%d in white", effect) << sim::LedParams{effect, 2, 2, OwnColour, 255, 255, 255};
}

/// Without a key pressed: it lights, it changes all the time, and it keeps to the brightness.
void TestLightShow::everyEffectPlays()
{
    QFETCH(sim::LedParams, params);
    Stage stage;
    stage.view.keys = params;
    std::set<std::vector<Colour>> pictures;
    int brightest = 0;
    for (int i = 0; i < 20; ++i) {
        const auto keys = stage.after(300ms);
        pictures.insert(keys);
        for (const Colour &key : keys)
            brightest = std::max(brightest, brightness(key));
    }
    QVERIFY(stage.show.moves());
    QVERIFY2(pictures.size() > 15, qPrintable(QString::number(pictures.size())));
    QVERIFY2(brightest > 90 && brightest <= 128, qPrintable(QString::number(brightest)));
}

void TestLightShow::standsStill()
{
    Stage stage;
    stage.view.keys = {1, 2, 4, ManyColours};
    const auto before = stage.after(100ms);
    QCOMPARE(stage.after(5s), before);
    QVERIFY(!stage.show.moves());
    stage.view.keys.effect = 2;
    stage.after(100ms);
    QVERIFY(stage.show.moves());
    stage.view.on = false;
    stage.after(100ms);
    QVERIFY(!stage.show.moves());
}

/// A breath in white tells the phase: from dark to full in half of its time.
void TestLightShow::speedBendsTheRun()
{
    const auto levelAfter = [](Byte speed) {
        Stage stage;
        stage.view.keys = {2, speed, 4, OwnColour, 255, 255, 255};
        return brightness(stage.after(600ms).front());
    };
    for (Byte speed = 0; speed < 4; ++speed)
        QVERIFY2(levelAfter(speed) > levelAfter(speed + 1) + 10, qPrintable(QString::number(speed)));
    QCOMPARE(levelAfter(9), levelAfter(4));

    Stage stage;
    stage.view.keys = {2, 4, 4, OwnColour, 255, 255, 255};
    const int before = brightness(stage.after(1s).front());
    stage.view.keys.speed = 0;
    QVERIFY(qAbs(brightness(stage.after(33ms).front()) - before) < 30); // no leap
    stage.now += 1h;
    QVERIFY(qAbs(brightness(stage.after(33ms).front()) - before) < 60); // nor after a pause
}

void TestLightShow::goesTheChosenWay_data()
{
    QTest::addColumn<Byte>("effect");
    QTest::addColumn<Byte>("choice");
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    const int middle = at(7, 3);
    QTest::newRow("wave to the left") << Byte{4} << Byte{0} << middle << at(6, 3);
    QTest::newRow("wave to the right") << Byte{4} << Byte{1} << middle << at(8, 3);
    QTest::newRow("wave up") << Byte{4} << Byte{2} << middle << at(7, 2);
    QTest::newRow("wave down") << Byte{4} << Byte{3} << middle << at(7, 4);
    QTest::newRow("flow through the rows") << Byte{7} << Byte{0} << at(3, 1) << at(2, 1);
    QTest::newRow("flow round the edge") << Byte{7} << Byte{1} << at(3, 5) << at(2, 5);
    QTest::newRow("fountain inwards") << Byte{11} << Byte{0} << at(3, 2) << at(4, 2);
    QTest::newRow("fountain outwards") << Byte{11} << Byte{1} << at(4, 2) << at(3, 2);
    QTest::newRow("blossoms to the right") << Byte{12} << Byte{0} << middle << at(8, 3);
    QTest::newRow("blossoms to the left") << Byte{12} << Byte{1} << middle << at(6, 3);
    QTest::newRow("clockwise") << Byte{15} << Byte{0} << at(4, 0) << at(9, 0);
    QTest::newRow("counter-clockwise") << Byte{15} << Byte{1} << at(9, 0) << at(4, 0);
}

/// Where the light comes from, it is bright shortly before.
void TestLightShow::goesTheChosenWay()
{
    QFETCH(Byte, effect);
    QFETCH(Byte, choice);
    QFETCH(int, from);
    QFETCH(int, to);
    Stage stage;
    stage.view.keys = {effect, 4, 4, Byte(choice << 4 | OwnColour), 255, 255, 255};
    std::vector<int> first;
    std::vector<int> second;
    for (int i = 0; i < 400; ++i) {
        const auto keys = stage.after(33ms);
        first.push_back(brightness(keys[std::size_t(from)]));
        second.push_back(brightness(keys[std::size_t(to)]));
    }
    const auto likeness = [&](std::size_t lead, std::size_t lag) {
        qint64 difference = 0;
        for (std::size_t i = 0; i + 10 < first.size(); ++i)
            difference -= qAbs(first[i + lead] - second[i + lag]);
        return difference;
    };
    QVERIFY(likeness(0, 5) > likeness(5, 0));
}

void TestLightShow::answersToKeys_data()
{
    QTest::addColumn<Byte>("effect");
    QTest::addColumn<bool>("spreads");
    QTest::newRow("ripple") << Byte{5} << true;
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

void TestLightShow::showsPicture()
{
    Stage stage;
    stage.view.keys = {sim::PictureEffect, 2, 2, 0};
    stage.view.picture[at(3, 2)] = {200, 100, 50};
    const auto keys = stage.after(33ms);
    QCOMPARE(keys[at(3, 2)], (Colour{100, 50, 25}));
    QCOMPARE(std::ranges::count(keys, Colour{}), std::ptrdiff_t(keys.size()) - 1);
    QVERIFY(!stage.show.moves());
}

void TestLightShow::showsMusic()
{
    Stage stage;
    stage.view.keys = {sim::MusicEffect, 2, 4, OwnColour, 255, 255, 255};
    stage.view.music.front() = Rows;
    stage.view.music.back() = 2;
    const auto keys = stage.after(33ms);
    const auto lit = [&keys](int column) {
        int rows = 0;
        for (int row = 0; row < Rows; ++row)
            rows += keys[std::size_t(at(column, row))] == Colour{255, 255, 255};
        return rows;
    };
    QCOMPARE(lit(0), Rows);
    QCOMPARE(lit(7), 0);
    QCOMPARE(lit(Columns - 1), 2);
    stage.view.music.fill(0);
    QVERIFY(stage.after(33ms) != keys);
}

void TestLightShow::playsStrip()
{
    Stage stage;
    const auto strip = [&stage](const sim::LedParams &params) {
        stage.view.side = params;
        stage.after(500ms);
        return std::vector<Colour>(stage.show.strip().begin(), stage.show.strip().end());
    };
    QVERIFY(std::ranges::all_of(strip({0, 2, 4, OwnColour, 9, 8, 7}),
                                [](auto lamp) { return lamp == Colour{}; }));
    QVERIFY(std::ranges::all_of(strip({1, 2, 4, OwnColour, 9, 8, 7}), [](auto lamp) {
        return lamp == Colour{9, 8, 7};
    }));
    QVERIFY(!stage.show.moves());
    for (const Byte effect : {2, 3, 4, 5}) {
        const sim::LedParams params{effect, 2, 4, ManyColours};
        QVERIFY2(strip(params) != strip(params), qPrintable(QString::number(effect)));
        QVERIFY(stage.show.moves());
    }
    QVERIFY(std::ranges::all_of(strip({77, 2, 4, OwnColour, 9, 8, 7}),
                                [](auto lamp) { return lamp == Colour{}; }));
}

QTEST_APPLESS_MAIN(TestLightShow)
#include "tst_lightshow.moc"
