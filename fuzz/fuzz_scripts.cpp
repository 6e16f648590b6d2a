// The script libraries' array and string helpers (ArrayUtils.js, StringUtils.js), loaded from
// the sources into a QML engine and called with arbitrary texts, numbers, index lists and
// flags. No helper may throw for an argument its header comment accepts, and the rules a
// driver checks below must hold: the selection rules keep a selection of distinct in-range
// indexes, report every change through the update callback, and the string helpers agree
// with each other.

#include <QCoreApplication>
#include <QFile>
#include <QJSValue>
#include <QQmlEngine>
#include <QRegularExpression>
#include <QStringList>

#include <fuzzer/FuzzedDataProvider.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <set>

namespace {

QQmlEngine* engine = nullptr;
QJSValue driver;

// Evaluates a library in a scope of its own and returns an object holding its functions, as
// a document's "import ... as Name" sees them.
QJSValue loadLibrary(const QString& fileName)
{
    QFile file(QStringLiteral(VYNUI_SOURCE_DIR "/src/qml/Script/") + fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "Cannot read %s\n", qPrintable(file.fileName()));
        std::abort();
    }
    QString text = QString::fromUtf8(file.readAll());
    text.remove(QRegularExpression(QStringLiteral("^\\.(pragma|import)[^\\n]*$"),
                                   QRegularExpression::MultilineOption));
    QStringList names;
    const QRegularExpression function(QStringLiteral("^function (\\w+)"),
                                      QRegularExpression::MultilineOption);
    for (auto it = function.globalMatch(text); it.hasNext();) {
        const QString name = it.next().captured(1);
        names.append(name + QLatin1Char(':') + name);
    }
    const QJSValue library =
        engine->evaluate(QStringLiteral("(function () {\n") + text + QStringLiteral("\nreturn {") +
                             names.join(',') + QStringLiteral("}\n})()"),
                         fileName);
    if (library.isError()) {
        std::fprintf(stderr, "%s: %s\n", qPrintable(fileName), qPrintable(library.toString()));
        std::abort();
    }
    return library;
}

const char kDriver[] = R"JS(
(function (ArrayUtils, StringUtils, input) {
    function rule(ok, what) {
        if (!ok)
            throw new Error("Broken rule: " + what)
    }
    const text = input.text
    const values = [undefined, null, "", text, 0, input.number, input.numbers, input.indexes,
                    {}, true, [text], {length: 2, 0: input.number, 1: text}]

    // String helpers accept any value.
    for (const v of values) {
        StringUtils.isNullOrUndefined(v)
        StringUtils.nullIfUndefined(v)
        StringUtils.isNullOrEmpty(v)
        StringUtils.isNullOrWhiteSpace(v)
        StringUtils.isBlank(v)
        StringUtils.formatQMLPath(v)
        StringUtils.formatMnemonic(v, input.flags[0])
        StringUtils.threeDotted(v)
        StringUtils.capitalized(v)
    }
    rule(StringUtils.isBlank(text) === StringUtils.isNullOrWhiteSpace(text),
         "a text is blank exactly when it holds only white space")
    rule(StringUtils.formatMnemonic(text, false).length === text.length - (/&[\s\S]/.test(text) ? 1 : 0),
         "resolving the accelerator mark drops exactly the ampersand")
    rule(text.length === 0 || StringUtils.threeDotted(text) === text + "...",
         "three dots follow a non-empty text")
    rule(StringUtils.formatQMLPath(text).length <= text.length, "a path never grows")

    // Number and array helpers accept any value.
    for (const v of values) {
        ArrayUtils.average(v)
        ArrayUtils.maxValue(v)
        ArrayUtils.closestValue(v, input.number)
        ArrayUtils.roundUpEvenOrOdd(v, input.number)
        ArrayUtils.objectIsArray(v)
        ArrayUtils.objectIsArray2(v)
        ArrayUtils.arrayEquals(v, input.numbers)
        ArrayUtils.indexOfJSValue(input.number, v)
        ArrayUtils.indexOfJSValue(input.number, [v, {value: input.number}])
    }
    rule(ArrayUtils.maxValue(input.numbers) >= 0 || isNaN(ArrayUtils.maxValue(input.numbers)),
         "the largest value is never below 0")
    rule(ArrayUtils.isOdd(ArrayUtils.roundUpOdd(input.count)), "rounding up to odd gives odd")
    rule(!ArrayUtils.isOdd(ArrayUtils.roundUpEven(input.count)), "rounding up to even gives even")
    const ascending = input.indexes.slice().sort(function (a, b) { return a - b })
    const groups = ArrayUtils.groupedConsecutiveIndexes(ascending)
    rule(ArrayUtils.arrayEquals([].concat.apply([], groups), ascending),
         "the runs of consecutive indexes put together give the list")

    // Selection rules: a click with modifiers on a list of distinct in-range indexes.
    const count = input.count
    const selected = input.indexes.slice()
    // The selection as the update callback reports it. A plain object, not a Set: Qt 6.4's
    // Set.prototype.delete reads past the end of its table (QTBUG-123999).
    const tracked = {}
    for (const i of selected)
        tracked[i] = true
    const trackedCount = function () { return Object.keys(tracked).length }
    let willCalls = 0
    let didCalls = 0
    const canSelect = input.flags[1] ? function (i) { return (i % input.modulo) !== 0 } : undefined
    const applied = ArrayUtils.selectAction(
        input.flags[2], input.flags[3], input.index, selected, count, input.pivot,
        input.flags[4], input.flags[5], input.flags[6], canSelect,
        function () { ++willCalls },
        function (i, isSelected) {
            rule(isSelected ? !tracked[i] : tracked[i] === true,
                 "an index is reported only when its state changes")
            if (isSelected)
                tracked[i] = true
            else
                delete tracked[i]
        },
        function (list) {
            ++didCalls
            rule(list === selected, "the did-select callback gets the list itself")
        })
    rule(applied ? willCalls === 1 && didCalls === 1 : willCalls === 0 && didCalls === 0,
         "the callbacks run once when a rule applies and never otherwise")
    rule(selected.length === trackedCount() && selected.every(function (i) { return tracked[i] === true }),
         "the updates reported give the new selection")
    rule(selected.every(function (i, k) { return selected.indexOf(i) === k }),
         "a selection holds distinct indexes")
    rule(selected.every(function (i) { return i >= 0 && i < count }),
         "a selection holds indexes of the list only")
    return true
})
)JS";

} // namespace

// The script engine keeps its objects in memory it maps itself, which LeakSanitizer does not
// scan: everything reachable only from script objects would be reported as leaked, after
// every input and at exit. Leak detection is off for this target alone.
extern "C" const char* __asan_default_options()
{
    return "detect_leaks=0";
}

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    static QCoreApplication app(*argc, *argv);
    engine = new QQmlEngine;
    const QJSValue arrayUtils = loadLibrary(QStringLiteral("ArrayUtils.js"));
    const QJSValue stringUtils = loadLibrary(QStringLiteral("StringUtils.js"));
    const QJSValue function =
        engine->evaluate(QString::fromUtf8(kDriver), QStringLiteral("driver"));
    if (!function.isCallable()) {
        std::fprintf(stderr, "driver: %s\n", qPrintable(function.toString()));
        std::abort();
    }
    driver = engine->newObject();
    driver.setProperty(QStringLiteral("run"), function);
    driver.setProperty(QStringLiteral("arrayUtils"), arrayUtils);
    driver.setProperty(QStringLiteral("stringUtils"), stringUtils);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    FuzzedDataProvider data(bytes, size);
    QJSValue input = engine->newObject();
    const int count = data.ConsumeIntegralInRange(0, 40);
    input.setProperty(QStringLiteral("count"), count);
    input.setProperty(QStringLiteral("index"), data.ConsumeIntegralInRange(-3, count + 3));
    input.setProperty(QStringLiteral("pivot"),
                      data.ConsumeBool() ? QJSValue(data.ConsumeIntegralInRange(-3, count + 3))
                                         : QJSValue(QJSValue::UndefinedValue));
    input.setProperty(QStringLiteral("modulo"), data.ConsumeIntegralInRange(1, 5));
    QJSValue flags = engine->newArray(7);
    for (quint32 i = 0; i < 7; ++i)
        flags.setProperty(i, data.ConsumeBool());
    input.setProperty(QStringLiteral("flags"), flags);
    input.setProperty(QStringLiteral("number"), data.ConsumeFloatingPoint<double>());

    const int numberCount = data.ConsumeIntegralInRange(0, 8);
    QJSValue numbers = engine->newArray(quint32(numberCount));
    for (int i = 0; i < numberCount; ++i)
        numbers.setProperty(quint32(i), data.ConsumeFloatingPoint<double>());
    input.setProperty(QStringLiteral("numbers"), numbers);

    std::set<int> distinct;
    const int indexCount = count > 0 ? data.ConsumeIntegralInRange(0, count) : 0;
    for (int i = 0; i < indexCount; ++i)
        distinct.insert(data.ConsumeIntegralInRange(0, count - 1));
    QJSValue indexes = engine->newArray(quint32(distinct.size()));
    quint32 position = 0;
    for (int index : distinct)
        indexes.setProperty(position++, index);
    input.setProperty(QStringLiteral("indexes"), indexes);
    input.setProperty(QStringLiteral("text"),
                      QString::fromUtf8(data.ConsumeRemainingBytesAsString().c_str()));

    const QJSValue result = driver.property(QStringLiteral("run"))
                                .call({driver.property(QStringLiteral("arrayUtils")),
                                       driver.property(QStringLiteral("stringUtils")), input});
    if (result.isError() || !result.toBool()) {
        std::fprintf(stderr, "%s\n", qPrintable(result.toString()));
        std::abort();
    }
    return 0;
}
