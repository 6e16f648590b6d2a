#include "benchtiming.h"

#include <QFile>
#include <QJSEngine>
#include <QTest>

namespace {

// ArrayUtils.js is a QML script library; its functions are plain JavaScript, loaded here
// into a bare engine.
QJSValue loadArrayUtils(QJSEngine& engine)
{
    QFile file(QStringLiteral(VYNUI_SOURCE_DIR "/src/qml/Script/ArrayUtils.js"));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QString source = QString::fromUtf8(file.readAll());
    source.replace(QStringLiteral(".pragma library"), QString());
    const QJSValue result = engine.evaluate(source, file.fileName());
    if (result.isError())
        return {};
    // A shift click over a list of n rows in which every row but one in ten is selected:
    // every run is dropped and the whole range selected again, each change reported.
    return engine.evaluate(QStringLiteral(R"(
        (function (n) {
            const selected = []
            for (let i = 0; i < n; ++i) {
                if (i % 10 !== 5)
                    selected.push(i)
            }
            let reports = 0
            shiftSelect(n - 1, selected, 0, null, function () { ++reports })
            return selected.length === n && reports > n
        }))"));
}

} // namespace

class BenchArrayUtils : public QObject
{
    Q_OBJECT

private slots:
    void cpuTime();
};

// Best CPU time of shiftSelect() over 1000, 10000 and 50000 rows, and the ratio between
// 10000 and 1000.
void BenchArrayUtils::cpuTime()
{
    QJSEngine engine;
    QJSValue run = loadArrayUtils(engine);
    QVERIFY(run.isCallable());
    // Warm-up (the engine compiles hot functions after a few calls), and the selection is
    // what it should be.
    for (int i = 0; i < 3; ++i)
        QVERIFY(run.call({10000}).toBool());
    double ms[3] = {};
    const int counts[3] = {1000, 10000, 50000};
    for (int i = 0; i < 3; ++i) {
        ms[i] = benchBestOf(5, [&](auto measure) {
            bool ok = false;
            measure([&] { ok = run.call({counts[i]}).toBool(); });
            QVERIFY(ok);
        });
    }
    qInfo("shiftSelect: 1000 rows %.2f ms, 10000 rows %.2f ms, 50000 rows %.2f ms, "
          "ratio 10000/1000 %.2f",
          ms[0], ms[1], ms[2], ms[1] / ms[0]);
}

QTEST_GUILESS_MAIN(BenchArrayUtils)
#include "bench_arrayutils.moc"
