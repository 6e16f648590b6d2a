// LogHelper as documents use it: the console lines it writes and the timestamp format.

#include <vynuiplugin.h>

#include <QDateTime>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QRegularExpression>
#include <QTest>

namespace {

const char* const kTimestampPattern = R"(\d{4}\.\d{2}\.\d{2} \d{2}:\d{2}:\d{2}\.\d{3})";

} // namespace

class tst_LogHelper : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void consoleLines_data();
    void consoleLines();
    void timestampIsLocalTime();
    void checktimeMsMeasuresTheCall();

private:
    QJSValue call(const QString& expression);

    QQmlEngine m_engine;
    std::unique_ptr<QObject> m_host;
};

void tst_LogHelper::initTestCase()
{
    VynUIPlugin::initializeTypes();
    m_engine.addImportPath(QStringLiteral(VYNUI_QML_IMPORT_PATH));
    QQmlComponent component(&m_engine);
    component.setData("import QtQml\nimport VynUI 1.2\n"
                      "QtObject { function run(code) { return eval(code) } }",
                      QUrl(QStringLiteral("qrc:/tst_loghelper.qml")));
    m_host.reset(component.create());
    QVERIFY2(m_host, qPrintable(component.errorString()));
}

QJSValue tst_LogHelper::call(const QString& expression)
{
    QVariant result;
    const bool invoked = QMetaObject::invokeMethod(
        m_host.get(), "run", Q_RETURN_ARG(QVariant, result), Q_ARG(QVariant, expression));
    if (!invoked)
        return QJSValue();
    return m_engine.toScriptValue(result);
}

void tst_LogHelper::consoleLines_data()
{
    QTest::addColumn<QString>("expression");
    QTest::addColumn<QtMsgType>("type");
    QTest::addColumn<QString>("expectedTail");

    QTest::newRow("log") << "LogHelper.log('VynSlideField', 'pressed', 'at 12')" << QtDebugMsg
                         << "\\]\\[VynSlideField\\]\\[pressed\\] at 12$";
    QTest::newRow("debug") << "LogHelper.debug('VynLed', 'blink', 3)" << QtDebugMsg
                           << "\\]\\[VynLed\\]\\[blink\\] 3$";
}

void tst_LogHelper::consoleLines()
{
    QFETCH(QString, expression);
    QFETCH(QtMsgType, type);
    QFETCH(QString, expectedTail);

    // The whole line: the bracketed timestamp, control and event with nothing between them,
    // one blank, then the message.
    const QRegularExpression line(QStringLiteral("^\\[%1").arg(QLatin1String(kTimestampPattern)) +
                                  expectedTail);
    QTest::ignoreMessage(type, line);
    call(expression);
}

void tst_LogHelper::timestampIsLocalTime()
{
    const QDateTime before = QDateTime::currentDateTime().addMSecs(-1);
    const QString text = call(QStringLiteral("LogHelper.timestamp()")).toString();
    const QDateTime after = QDateTime::currentDateTime().addMSecs(1);

    QVERIFY2(QRegularExpression(QStringLiteral("^%1$").arg(QLatin1String(kTimestampPattern)))
                 .match(text)
                 .hasMatch(),
             qPrintable(text));
    const QDateTime parsed = QDateTime::fromString(text, QStringLiteral("yyyy.MM.dd hh:mm:ss.zzz"));
    QVERIFY(parsed.isValid());
    QVERIFY2(parsed >= before && parsed <= after, qPrintable(text));
}

void tst_LogHelper::checktimeMsMeasuresTheCall()
{
    // A busy loop of at least 30 ms: only the lower bound is checked.
    const QJSValue elapsed = call(QStringLiteral(
        "(function () { var ran = false; var ms = LogHelper.checktimeMs(function () {"
        " var end = Date.now() + 30; while (Date.now() < end) {} ran = true });"
        " return ran ? ms : -1 })()"));
    QVERIFY(elapsed.isNumber());
    QVERIFY2(elapsed.toNumber() >= 30, qPrintable(elapsed.toString()));
}

QTEST_GUILESS_MAIN(tst_LogHelper)
#include "tst_loghelper.moc"
