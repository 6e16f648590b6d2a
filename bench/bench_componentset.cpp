#include "benchtiming.h"
#include "vynuicomponentset.h"
#include "vynuislidercomponent.h"

#include <QTest>

#include <memory>
#include <vector>

namespace {

VynProxyParamPath path(const QString& text)
{
    return VynProxyParamPath::fromString(text);
}

// What a host does with its components, timed as a whole: file n components under their
// own paths, re-file each one by one through its paramPath, file all of them under one
// group path too, move that group with updatePath(), then remove them one by one.
double cpuMilliseconds(int count)
{
    std::vector<std::unique_ptr<VynUISliderComponent>> components;
    QList<VynProxyParamPath> gains, levels;
    for (int i = 0; i < count; ++i) {
        components.push_back(std::make_unique<VynUISliderComponent>(nullptr, false));
        gains.append(path(QStringLiteral("Amp[%1]/Gain").arg(i)));
        levels.append(path(QStringLiteral("Amp[%1]/Level").arg(i)));
    }
    const VynProxyParamPath group = path("Group[1]/Gain");
    const VynProxyParamPath moved = path("Group[2]/Gain");

    return benchBestOf(3, [&](auto measure) {
        for (int i = 0; i < count; ++i)
            components[size_t(i)]->setParamPath(gains[i]);
        VynUIComponentSet set;
        measure([&] {
            for (const auto& c : components)
                set.insert(c.get());
            for (int i = 0; i < count; ++i)
                components[size_t(i)]->setParamPath(levels[i]);
            for (const auto& c : components)
                set.insert(group, c.get());
            set.updatePath(group, moved);
            for (const auto& c : components)
                set.remove(c.get());
        });
        QVERIFY(set.components().isEmpty());
    });
}

} // namespace

class BenchComponentSet : public QObject
{
    Q_OBJECT

private slots:
    void cpuTime();
};

// Best CPU time of the whole sequence at 1000 and 10000 components, and the ratio.
void BenchComponentSet::cpuTime()
{
    cpuMilliseconds(100); // warm-up
    const double small = cpuMilliseconds(1000);
    const double large = cpuMilliseconds(10000);
    qInfo("component set: 1000 components %.2f ms, 10000 components %.2f ms, "
          "ratio 10000/1000 %.2f",
          small, large, large / small);
}

QTEST_GUILESS_MAIN(BenchComponentSet)
#include "bench_componentset.moc"
