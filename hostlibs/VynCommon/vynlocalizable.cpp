#include "vynlocalizable.h"

#include <qtcommons.h>

const QString VynLocalizable::kContext = QStringLiteral("VynLocalizable");
const QString VynLocalizable::kParamNamesContext = QStringLiteral("VynParamNames");

const QHash<QString, QString>& VynLocalizable::table()
{
    static const QHash<QString, QString> s_table{
        {QStringLiteral("MULTIPLE"), QStringLiteral("Multiple")},
        {QStringLiteral("MULTIPLE_SHORT"), QStringLiteral("Mult.")},
        {QStringLiteral("NO_VALUE"), QStringLiteral("No Value")},
        {QStringLiteral("PATCHED"), QStringLiteral("Patched")},
        {QStringLiteral("DONT_SHOW_AGAIN"), QStringLiteral("Don't show again")},
        {QStringLiteral("OK"), QStringLiteral("OK")},
        {QStringLiteral("CANCEL"), QStringLiteral("Cancel")},
    };
    return s_table;
}

// Display names of parameters, keyed by the parameter's name, optionally
// prefixed with a device family key ("Amplifier/Gain") when one family words
// it differently; a key ending in "_SHORT" is the short form.
const QHash<QString, QString>& VynLocalizable::paramNamesTable()
{
    static const QHash<QString, QString> s_table{
        {QStringLiteral("Gain"), QStringLiteral("Gain")},
        {QStringLiteral("Delay"), QStringLiteral("Delay")},
        {QStringLiteral("Frequency"), QStringLiteral("Frequency")},
        {QStringLiteral("Frequency_SHORT"), QStringLiteral("Freq.")},
        {QStringLiteral("Mute"), QStringLiteral("Mute")},
        {QStringLiteral("Polarity"), QStringLiteral("Polarity")},
        {QStringLiteral("Polarity_SHORT"), QStringLiteral("Pol.")},
        {QStringLiteral("Voltage"), QStringLiteral("Output Voltage")},
        {QStringLiteral("Voltage_SHORT"), QStringLiteral("Voltage")},
        {QStringLiteral("Current"), QStringLiteral("Output Current")},
        {QStringLiteral("Current_SHORT"), QStringLiteral("Current")},
        {QStringLiteral("GainReduction"), QStringLiteral("Gain Reduction")},
        {QStringLiteral("GainReduction_SHORT"), QStringLiteral("GR")},
        {QStringLiteral("PeakLimiter"), QStringLiteral("Peak Limiter")},
        {QStringLiteral("PeakLimiter_SHORT"), QStringLiteral("Peak")},
        {QStringLiteral("Temperature"), QStringLiteral("Temperature")},
        {QStringLiteral("Temperature_SHORT"), QStringLiteral("Temp.")},
        {QStringLiteral("Compressor"), QStringLiteral("Compressor")},
        {QStringLiteral("Compressor_SHORT"), QStringLiteral("Comp.")},
        {QStringLiteral("CompressorRms"), QStringLiteral("RMS Compressor")},
        {QStringLiteral("CompressorRms_SHORT"), QStringLiteral("RMS Comp.")},
        {QStringLiteral("Loudspeaker/Gain"), QStringLiteral("Cabinet Gain")},
        {QStringLiteral("Processor/Gain"), QStringLiteral("Input Gain")},
    };
    return s_table;
}

void VynLocalizable::registerTables()
{
    QtCommons::addQLocalTable(kContext, table());
    QtCommons::addQLocalTable(kParamNamesContext, paramNamesTable());
}

// The tables are available as soon as the library is loaded, before any
// module opens it.
static void registerTablesAtLoad()
{
    VynLocalizable::registerTables();
}
Q_CONSTRUCTOR_FUNCTION(registerTablesAtLoad)
