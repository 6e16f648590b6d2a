#include "vynuilocalizable.h"

#include <QMetaObject>

const QList<QPair<QString, QString>>& VynUILocalizable::entries()
{
    // The ellipsis of the "..._BUTTON" texts is the single character U+2026.
    // "NONE_FEM" repeats "None" on purpose: languages with grammatical gender
    // translate it differently.
    static const QList<QPair<QString, QString>> s_entries{
        {QStringLiteral("CTXT"), QStringLiteral("VynUILocalizable")},
        {QStringLiteral("STATUS_ON"), QStringLiteral("On")},
        {QStringLiteral("STATUS_OFF"), QStringLiteral("Off")},
        {QStringLiteral("STATUS_MULT"), QStringLiteral("Mult.")},
        {QStringLiteral("ENABLE"), QStringLiteral("Enable")},
        {QStringLiteral("DISABLE"), QStringLiteral("Disable")},
        {QStringLiteral("UPDATE"), QStringLiteral("Update")},
        {QStringLiteral("ADD_BUTTON"), QString::fromUtf8("Add\xe2\x80\xa6")},
        {QStringLiteral("EXPORT_BUTTON"), QString::fromUtf8("Export\xe2\x80\xa6")},
        {QStringLiteral("DELETE"), QStringLiteral("Delete")},
        {QStringLiteral("DELETE_BUTTON"), QString::fromUtf8("Delete\xe2\x80\xa6")},
        {QStringLiteral("DELETE_ALL"), QStringLiteral("Delete All")},
        {QStringLiteral("DELETE_ALL_BUTTON"), QString::fromUtf8("Delete All\xe2\x80\xa6")},
        {QStringLiteral("REMOVE"), QStringLiteral("Remove")},
        {QStringLiteral("REMOVE_BUTTON"), QString::fromUtf8("Remove\xe2\x80\xa6")},
        {QStringLiteral("CONFIRM_BUTTON"), QStringLiteral("Confirm")},
        {QStringLiteral("EDIT"), QStringLiteral("Edit")},
        {QStringLiteral("EDIT_BUTTON"), QString::fromUtf8("Edit\xe2\x80\xa6")},
        {QStringLiteral("REVIEW"), QStringLiteral("Review")},
        {QStringLiteral("REVIEW_BUTTON"), QString::fromUtf8("Review\xe2\x80\xa6")},
        {QStringLiteral("ZOOM"), QStringLiteral("Zoom")},
        {QStringLiteral("RESET_TO_DEFAULTS"), QStringLiteral("Reset to defaults")},
        {QStringLiteral("RESET"), QStringLiteral("Reset")},
        {QStringLiteral("SET"), QStringLiteral("Set")},
        {QStringLiteral("COPY"), QStringLiteral("Copy")},
        {QStringLiteral("PASTE"), QStringLiteral("Paste")},
        {QStringLiteral("SELECT_ALL"), QStringLiteral("Select All")},
        {QStringLiteral("DESELECT_ALL"), QStringLiteral("Deselect All")},
        {QStringLiteral("REVEAL_IN_FINDER"), QStringLiteral("Reveal in Finder")},
        {QStringLiteral("REVEAL_IN_EXPLORER"), QStringLiteral("Reveal in Explorer")},
        {QStringLiteral("PROCEED_ANYWAY"), QStringLiteral("Proceed anyway")},
        {QStringLiteral("ALL"), QStringLiteral("All")},
        {QStringLiteral("NONE"), QStringLiteral("None")},
        {QStringLiteral("NONE_FEM"), QStringLiteral("None")},
        {QStringLiteral("ENABLED"), QStringLiteral("Enabled")},
        {QStringLiteral("DONE"), QStringLiteral("Done")},
        {QStringLiteral("DRAG_MULT_TIP_TITLE"), QStringLiteral("Tip: multiple drag and drop")},
        {QStringLiteral("DRAG_MULT_TIP_DETAIL"),
         QStringLiteral(
             "To drag multiple items, hold <b>Ctrl/Cmd</b> or <b>Shift</b> key before dragging.")},
        {QStringLiteral("DISTANTVERSIONCHECK"),
         QStringLiteral("Automatically look for app updates")},
        {QStringLiteral("DISTANTFIRMWAREVERSIONCHECK"),
         QStringLiteral("Automatically look for new firmware")},
        {QStringLiteral("DOWNLOAD"), QStringLiteral("Download")},
        {QStringLiteral("DISCARD"), QStringLiteral("Discard")},
        {QStringLiteral("DISTANTVERSION_SKIP"), QStringLiteral("Skip this version")},
        {QStringLiteral("DISTANTVERSION_NOTIF_MESSAGE_NOUPDATE"),
         QStringLiteral("No update available")},
        {QStringLiteral("DISTANTVERSION_NOTIF_MESSAGE_FORMAT"),
         QStringLiteral("%1 %2%3 available")},
        {QStringLiteral("DISTANTVERSION_NOTIF_MESSAGE_ALPHA"), QStringLiteral(" (alpha)")},
        {QStringLiteral("DISTANTVERSION_NOTIF_MESSAGE_BETA"), QStringLiteral(" (beta)")},
        {QStringLiteral("PRESS_FOR_DETAIL"), QStringLiteral("Press for detail")},
    };
    return s_entries;
}

static QHash<QString, QString> buildHash()
{
    QHash<QString, QString> hash;
    for (const auto& entry : VynUILocalizable::entries())
        hash.insert(entry.first, entry.second);
    return hash;
}

const QHash<QString, QString> VynUILocalizable::k_VynUILocalizableHash = buildHash();

QString VynUILocalizable::context()
{
    return QString::fromLatin1(staticMetaObject.className());
}
