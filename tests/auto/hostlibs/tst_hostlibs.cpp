#include <qapplicationsettings.h>
#include <qtcommons.h>
#include <qtcommonsconstants.h>
#include <vyncommon.h>
#include <vyncommonconstants.h>
#include <vynlocalizable.h>
#include <vynproxyparampath.h>

#include <QDir>
#include <QFile>
#include <QMap>
#include <QRectF>
#include <QTemporaryDir>
#include <QTranslator>
#include <QtTest>

#include <unistd.h>

using QtCommonsConstants::qLocalizedString;

class TestHostLibs : public QObject
{
    Q_OBJECT

private slots:
    void pathRoundTrip_data();
    void pathRoundTrip();
    void pathRejectsBadText_data();
    void pathRejectsBadText();
    void pathOrdering();
    void pathLastName();
    void pathLocalizedName_data();
    void pathLocalizedName();
    void pathInVariant();

    void localTables();
    void translatorComesFirst();
    void builtInTables();

    void settingsRoundTrip_data();
    void settingsRoundTrip();
    void settingsWriteNow();
    void settingsReplaceTheFileWhole();
    void settingsDamagedFile_data();
    void settingsDamagedFile();
    void settingsSharedStore();
};

void TestHostLibs::pathRoundTrip_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("canonical");
    QTest::addColumn<int>("count");
    QTest::newRow("empty") << ""
                           << "" << 0;
    QTest::newRow("only separators") << "//"
                                     << "" << 0;
    QTest::newRow("one name") << "Gain"
                              << "Gain" << 1;
    QTest::newRow("indexes") << "Amp[3]/Channel[2]/Gain"
                             << "Amp[3]/Channel[2]/Gain" << 3;
    QTest::newRow("extra separators and spaces") << " /Amp[3]// Channel [2]/Gain/ "
                                                 << "Amp[3]/Channel[2]/Gain" << 3;
    QTest::newRow("explicit id kept") << "Amp[1]/Meter#111"
                                      << "Amp[1]/Meter#111" << 2;
    QTest::newRow("registered id dropped") << "Amp[1]/Gain#101"
                                           << "Amp[1]/Gain" << 2;
    QTest::newRow("names with spaces") << "Input Matrix[0]/Cross Point"
                                       << "Input Matrix[0]/Cross Point" << 2;
}

void TestHostLibs::pathRoundTrip()
{
    QFETCH(QString, text);
    QFETCH(QString, canonical);
    QFETCH(int, count);
    bool ok = false;
    const VynProxyParamPath path = VynProxyParamPath::fromString(text, &ok);
    QVERIFY(ok);
    QCOMPARE(path.toString(), canonical);
    QCOMPARE(path.count(), count);
    QCOMPARE(VynProxyParamPath::fromString(path.toString()), path);
    QCOMPARE(path.isEmpty(), count == 0);
    QCOMPARE(path == VynProxyParamPath::EmptyPath, count == 0);
}

void TestHostLibs::pathRejectsBadText_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("unclosed index") << "Amp[3/Gain";
    QTest::newRow("letters in index") << "Amp[x]";
    QTest::newRow("index before nothing") << "[3]";
    QTest::newRow("bad id") << "Gain#abc";
    QTest::newRow("two indexes") << "Amp[1][2]";
    QTest::newRow("index overflow") << "Amp[99999999999999999999]";
}

void TestHostLibs::pathRejectsBadText()
{
    QFETCH(QString, text);
    bool ok = true;
    const VynProxyParamPath path = VynProxyParamPath::fromString(text, &ok);
    QVERIFY(!ok);
    QCOMPARE(path, VynProxyParamPath::EmptyPath);
    QVERIFY(VynProxyParamPath::EmptyPath.toString().isEmpty());
}

void TestHostLibs::pathOrdering()
{
    const auto p = [](const char* text) {
        return VynProxyParamPath::fromString(QLatin1String(text));
    };
    QVERIFY(p("") < p("Amp"));
    QVERIFY(p("Amp") < p("Amp[0]"));         // no index before any index
    QVERIFY(p("Amp[2]") < p("Amp[10]"));     // indexes compare as numbers
    QVERIFY(p("Amp[1]") < p("Amp[1]/Gain")); // a prefix before its extensions
    QVERIFY(p("Amp[1]/Z") < p("Amp[2]/A"));  // element by element
    QVERIFY(p("Gain#5") < p("Gain#7"));
    QCOMPARE(p("Amp[1]/Gain").compare(p("Amp[1]/Gain")), 0);
    QVERIFY(p("Amp[1]/Gain") != p("Amp[1]/Delay"));

    QMap<VynProxyParamPath, int> map;
    map.insert(p("Amp[10]/Gain"), 3);
    map.insert(p("Amp[2]/Gain"), 2);
    map.insert(p("Amp[2]/Delay"), 1);
    map.insert(p("Amp[2]/Gain"), 4); // same key replaces
    QCOMPARE(map.size(), 3);
    QCOMPARE(map.firstKey().toString(), QStringLiteral("Amp[2]/Delay"));
    QCOMPARE(map.lastKey().toString(), QStringLiteral("Amp[10]/Gain"));
    QCOMPARE(map.value(p("Amp[2]/Gain")), 4);
    QCOMPARE(qHash(p("Amp[2]/Gain")), qHash(p("/Amp[2]/Gain/")));
}

void TestHostLibs::pathLastName()
{
    QCOMPARE(VynProxyParamPath::EmptyPath.getLastName(), 0);
    QCOMPARE(VynProxyParamPath::fromString("Amp[1]/Ch[2]/Gain").getLastName(), 101);
    QCOMPARE(VynProxyParamPath::fromString("Amp[1]/Compressor").getLastName(), 116);
    QCOMPARE(VynProxyParamPath::fromString("Amp[1]/Meter#117").getLastName(), 117);
    QCOMPARE(VynProxyParamPath::fromString("Amp[1]/Unknown").getLastName(), 0);

    VynProxyParamPath::registerNameId(QStringLiteral("Crossover"), 150);
    const VynProxyParamPath crossover = VynProxyParamPath::fromString("Amp[1]/Crossover");
    QCOMPARE(crossover.getLastName(), 150);
    QCOMPARE(crossover.toString(), QStringLiteral("Amp[1]/Crossover"));
    QCOMPARE(crossover.getLastNameText(), QStringLiteral("Crossover"));
    QCOMPARE(crossover.parent().toString(), QStringLiteral("Amp[1]"));
    QCOMPARE(crossover.prefixed({QStringLiteral("Rack"), 2, 0}).toString(),
             QStringLiteral("Rack[2]/Amp[1]/Crossover"));
}

void TestHostLibs::pathLocalizedName_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<int>("family");
    QTest::addColumn<bool>("shortForm");
    QTest::addColumn<QString>("expected");
    const int amp = VynFamilyUtils::VynDeviceFamilyAmplifier;
    const int speaker = VynFamilyUtils::VynDeviceFamilyLoudspeaker;
    QTest::newRow("plain") << "Amp[1]/Gain" << amp << false << "Gain";
    QTest::newRow("family wording") << "Amp[1]/Gain" << speaker << false << "Cabinet Gain";
    QTest::newRow("short form") << "Amp[1]/Voltage" << amp << true << "Voltage";
    QTest::newRow("long form") << "Amp[1]/Voltage" << amp << false << "Output Voltage";
    QTest::newRow("short falls back to long") << "Amp[1]/Gain" << amp << true << "Gain";
    QTest::newRow("unknown name is itself") << "Amp[1]/Tilt" << amp << false << "Tilt";
    QTest::newRow("index appended") << "Amp[1]/Channel[2]" << amp << false << "Channel 2";
    QTest::newRow("empty path") << "" << amp << false << "";
}

void TestHostLibs::pathLocalizedName()
{
    QFETCH(QString, path);
    QFETCH(int, family);
    QFETCH(bool, shortForm);
    QFETCH(QString, expected);
    QCOMPARE(VynProxyParamPath::fromString(path).getLocalizedNameForFamily(
                 VynFamilyUtils::VynDeviceFamily(family), shortForm),
             expected);
}

void TestHostLibs::pathInVariant()
{
    VynCommon::initializeTypes();
    const VynProxyParamPath path = VynProxyParamPath::fromString("Amp[1]/Gain");
    const QVariant variant = QVariant::fromValue(path);
    QCOMPARE(variant.value<VynProxyParamPath>(), path);
    QVERIFY(QMetaType::fromName("VynProxyParamPath").isValid());
}

void TestHostLibs::localTables()
{
    const QString context = QStringLiteral("TestTable");
    QCOMPARE(qLocalizedString(QStringLiteral("HELLO"), context), QStringLiteral("HELLO"));
    QVERIFY(!QtCommons::hasQLocalTable(context));

    QtCommons::addQLocalTable(context, {{QStringLiteral("HELLO"), QStringLiteral("Hello")}});
    QtCommons::addQLocalTable(context, {{QStringLiteral("HELLO"), QStringLiteral("Hello")}});
    QCOMPARE(qLocalizedString(QStringLiteral("HELLO"), context), QStringLiteral("Hello"));

    // A later registration adds keys and replaces texts; nothing else is lost.
    QtCommons::addQLocalTable(context, {{QStringLiteral("BYE"), QStringLiteral("Bye")},
                                        {QStringLiteral("HELLO"), QStringLiteral("Hi")}});
    QCOMPARE(qLocalizedString(QStringLiteral("HELLO"), context), QStringLiteral("Hi"));
    QCOMPARE(qLocalizedString(QStringLiteral("BYE"), context), QStringLiteral("Bye"));
    QCOMPARE(qLocalizedString(QStringLiteral("BYE"), QStringLiteral("OtherTable")),
             QStringLiteral("BYE"));
    QVERIFY(QtCommons::qLocalTableNames().contains(context));
}

class GermanTranslator : public QTranslator
{
public:
    QString translate(const char* context, const char* sourceText, const char* disambiguation,
                      int) const override
    {
        if (qstrcmp(context, "TranslatedTable") == 0 && qstrcmp(sourceText, "HELLO") == 0)
            return qstrcmp(disambiguation, "greeting") == 0 ? QStringLiteral("Servus")
                                                            : QStringLiteral("Hallo");
        return QString();
    }
    bool isEmpty() const override { return false; }
};

void TestHostLibs::translatorComesFirst()
{
    const QString context = QStringLiteral("TranslatedTable");
    QtCommons::addQLocalTable(context, {{QStringLiteral("HELLO"), QStringLiteral("Hello")},
                                        {QStringLiteral("BYE"), QStringLiteral("Bye")}});
    GermanTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QCOMPARE(qLocalizedString(QStringLiteral("HELLO"), context), QStringLiteral("Hallo"));
    QCOMPARE(qLocalizedString(QStringLiteral("HELLO"), context, QStringLiteral("greeting")),
             QStringLiteral("Servus"));
    QCOMPARE(qLocalizedString(QStringLiteral("BYE"), context), QStringLiteral("Bye"));
    QCoreApplication::removeTranslator(&translator);
    QCOMPARE(qLocalizedString(QStringLiteral("HELLO"), context), QStringLiteral("Hello"));
}

void TestHostLibs::builtInTables()
{
    // Available as soon as the library is loaded, before any module opens it.
    const QString table = QStringLiteral("VynLocalizable");
    for (const char* key : {"MULTIPLE", "MULTIPLE_SHORT", "NO_VALUE", "PATCHED", "DONT_SHOW_AGAIN"})
        QVERIFY2(qLocalizedString(QLatin1String(key), table) != QLatin1String(key), key);
    QCOMPARE(qLocalizedString(QStringLiteral("MULTIPLE"), table), QStringLiteral("Multiple"));
    QVERIFY(kVynNullString.isNull());
}

void TestHostLibs::settingsRoundTrip_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("group");
    QTest::newRow("list of identifiers")
        << QVariant(QVariantList({QStringLiteral("a"), QStringLiteral("b.c")})) << "VynUI";
    QTest::newRow("empty list") << QVariant(QVariantList()) << "VynUI";
    QTest::newRow("number, no group") << QVariant(42.5) << "";
    QTest::newRow("rectangle") << QVariant(QRectF(1, 2, 300, 400)) << "Frames";
    QTest::newRow("unicode text") << QVariant(QStringLiteral("Gr\u00fc\u00dfe \u266b")) << "G/H";
}

void TestHostLibs::settingsRoundTrip()
{
    QFETCH(QVariant, value);
    QFETCH(QString, group);
    QTemporaryDir dir;
    const QString file = dir.filePath(QStringLiteral("sub/folder/app.settings"));
    {
        QApplicationSettings settings(file);
        QCOMPARE(settings.retrieveSetting("entry", "list", QStringLiteral("none"), group),
                 QVariant(QStringLiteral("none")));
        QVERIFY(settings.saveSetting(value, "entry", "list", group, true));
        QVERIFY(!settings.hasPendingChanges());
        QCOMPARE(settings.retrieveSetting("entry", "list", QVariant(), group), value);
    }
    QApplicationSettings reread(file);
    QCOMPARE(reread.retrieveSetting("entry", "list", QVariant(), group), value);
    // The three keys all count: another group, entry or list key holds nothing.
    QVERIFY(!reread.retrieveSetting("entry", "list", QVariant(), group + "x").isValid());
    QVERIFY(!reread.retrieveSetting("entryx", "list", QVariant(), group).isValid());
    QVERIFY(!reread.retrieveSetting("entry", "listx", QVariant(), group).isValid());
    // An invalid value removes the entry.
    QVERIFY(reread.saveSetting(QVariant(), "entry", "list", group, true));
    QApplicationSettings third(file);
    QVERIFY(!third.retrieveSetting("entry", "list", QVariant(), group).isValid());
}

void TestHostLibs::settingsWriteNow()
{
    QTemporaryDir dir;
    const QString file = dir.filePath(QStringLiteral("app.settings"));
    QApplicationSettings settings(file);
    QVERIFY(settings.saveSetting(1, "later", "k", "g", false));
    QVERIFY(settings.hasPendingChanges());
    QVERIFY(!QFile::exists(file));
    QVERIFY(settings.saveSetting(2, "now", "k", "g", true));
    {
        // A write now also carries the earlier pending change.
        QApplicationSettings other(file);
        QCOMPARE(other.retrieveSetting("later", "k", QVariant(), "g"), QVariant(1));
        QCOMPARE(other.retrieveSetting("now", "k", QVariant(), "g"), QVariant(2));
    }
    QVERIFY(settings.saveSetting(3, "later", "k", "g"));
    QVERIFY(settings.sync());
    QVERIFY(!settings.hasPendingChanges());
    QCOMPARE(QApplicationSettings(file).retrieveSetting("later", "k", QVariant(), "g"),
             QVariant(3));
    // Pending changes reach the file when the store ends.
    {
        QApplicationSettings scoped(file);
        scoped.saveSetting(4, "later", "k", "g");
    }
    QCOMPARE(QApplicationSettings(file).retrieveSetting("later", "k", QVariant(), "g"),
             QVariant(4));
}

void TestHostLibs::settingsReplaceTheFileWhole()
{
    QTemporaryDir dir;
    const QString file = dir.filePath(QStringLiteral("app.settings"));
    const QString oldVersion = dir.filePath(QStringLiteral("old.settings"));
    QApplicationSettings settings(file);
    QVERIFY(settings.saveSetting(QStringLiteral("first"), "e", "l", "g", true));
    // A second name for the file's present content: a write in place would change it too.
    QCOMPARE(::link(QFile::encodeName(file).constData(), QFile::encodeName(oldVersion).constData()),
             0);
    QVERIFY(settings.saveSetting(QStringLiteral("second"), "e", "l", "g", true));
    QCOMPARE(QApplicationSettings(oldVersion).retrieveSetting("e", "l", QVariant(), "g"),
             QVariant(QStringLiteral("first")));
    QCOMPARE(QApplicationSettings(file).retrieveSetting("e", "l", QVariant(), "g"),
             QVariant(QStringLiteral("second")));
    // Nothing is left beside the file.
    QCOMPARE(QDir(dir.path()).entryList(QDir::Files | QDir::Hidden),
             QStringList({"app.settings", "old.settings"}));
}

void TestHostLibs::settingsDamagedFile_data()
{
    QTest::addColumn<QString>("damage");
    QTest::addColumn<QString>("reason");
    QTest::newRow("empty") << "empty"
                           << "empty";
    QTest::newRow("text") << "text"
                          << "not a settings file";
    QTest::newRow("cut short") << "truncate"
                               << "truncated";
    QTest::newRow("one byte changed") << "flip"
                                      << "damaged (checksum mismatch)";
    QTest::newRow("a folder in its place") << "folder"
                                           << "unreadable";
}

void TestHostLibs::settingsDamagedFile()
{
    QFETCH(QString, damage);
    QFETCH(QString, reason);
    QTemporaryDir dir;
    const QString file = dir.filePath(QStringLiteral("app.settings"));
    {
        QApplicationSettings settings(file);
        QVERIFY(settings.saveSetting(QVariantList({QStringLiteral("a"), QStringLiteral("b")}), "e",
                                     "l", "g", true));
    }
    QFile raw(file);
    QVERIFY(raw.open(QIODevice::ReadOnly));
    QByteArray data = raw.readAll();
    raw.close();
    if (damage == "empty")
        data.clear();
    else if (damage == "text")
        data = "[VynUI]\nhiddenHints=a, b\n";
    else if (damage == "truncate")
        data.chop(3);
    else if (damage == "flip")
        data[data.size() - 2] = char(data.at(data.size() - 2) ^ 0x20);
    if (damage == "folder") {
        QVERIFY(QFile::remove(file));
        QVERIFY(QDir().mkpath(file));
    } else {
        QVERIFY(raw.open(QIODevice::WriteOnly | QIODevice::Truncate));
        QCOMPARE(raw.write(data), data.size());
        raw.close();
    }

    QApplicationSettings settings(file);
    QTest::ignoreMessage(QtWarningMsg,
                         qPrintable(QStringLiteral("QApplicationSettings: %1 is %2; starting "
                                                   "with no settings")
                                        .arg(QDir::toNativeSeparators(file), reason)));
    // Read as "no settings", and said once however often it is read.
    QCOMPARE(settings.retrieveSetting("e", "l", QStringLiteral("default"), "g"),
             QVariant(QStringLiteral("default")));
    QCOMPARE(settings.retrieveSetting("e", "l", QStringLiteral("default"), "g"),
             QVariant(QStringLiteral("default")));
    if (damage == "folder")
        return;
    // The next write replaces the damaged file with a sound one.
    QVERIFY(settings.saveSetting(7, "e", "l", "g", true));
    QCOMPARE(QApplicationSettings(file).retrieveSetting("e", "l", QVariant(), "g"), QVariant(7));
}

void TestHostLibs::settingsSharedStore()
{
    QCoreApplication::setApplicationName(QStringLiteral("VynHostLibsTest"));
    const QString name = QApplicationSettings::defaultFileName();
    QVERIFY2(name.endsWith(QStringLiteral("/VynHostLibsTest/VynHostLibsTest.settings")),
             qPrintable(name));
    QApplicationSettings* shared = QApplicationSettings::sharedSettings();
    QCOMPARE(QApplicationSettings::sharedSettings(this), shared);
    QCOMPARE(shared->parent(), QCoreApplication::instance());
    QCOMPARE(shared->fileName(), name);

    QTemporaryDir dir;
    const QString file = dir.filePath(QStringLiteral("chosen.settings"));
    shared->setFileName(file);
    QVERIFY(shared->saveSetting(QStringLiteral("v"), "e", "l", "g", true));
    QVERIFY(QFile::exists(file));
    delete shared;
    QApplicationSettings* renewed = QApplicationSettings::sharedSettings(this);
    QVERIFY(renewed);
    QCOMPARE(renewed->parent(), this);
    renewed->setFileName(file);
    QCOMPARE(renewed->retrieveSetting("e", "l", QVariant(), "g"), QVariant(QStringLiteral("v")));
    delete renewed;
}

QTEST_GUILESS_MAIN(TestHostLibs)
#include "tst_hostlibs.moc"
