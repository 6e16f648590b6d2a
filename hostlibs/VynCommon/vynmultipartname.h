#pragma once

#include "vyncommonglobal.h"

#include <QMetaType>
#include <QObject>
#include <QString>

/*!
    The name of a loudspeaker cabinet in parts, as a cabinet label shows it:
    the series ("K"), the model ("K2") and the preset ("K2 110"), two flags and
    four numbers.

    - bridged: the cabinet is driven by a bridged pair of channels.
    - mixed: the name stands for several cabinets whose names differ; the
      string parts then describe the first of them.
    - count: how many identical cabinets the name stands for (1 by default).
    - firstChannel and channelCount: the amplifier channels that drive them
      (channel -1 when not known).
    - cabinetId: the identifier of the cabinet model in the catalogue, 0 when
      not known.

    The record is copied and compared field by field.
*/
struct VYNCOMMON_EXPORT VynMultiPartName
{
    Q_GADGET
    Q_PROPERTY(QString series MEMBER series)
    Q_PROPERTY(QString model MEMBER model)
    Q_PROPERTY(QString preset MEMBER preset)
    Q_PROPERTY(bool bridged MEMBER bridged)
    Q_PROPERTY(bool mixed MEMBER mixed)
    Q_PROPERTY(int count MEMBER count)
    Q_PROPERTY(int firstChannel MEMBER firstChannel)
    Q_PROPERTY(int channelCount MEMBER channelCount)
    Q_PROPERTY(int cabinetId MEMBER cabinetId)
    Q_PROPERTY(QString tooltipText READ defaultTooltipText)

public:
    QString series;
    QString model;
    QString preset;
    bool bridged = false;
    bool mixed = false;
    qint32 count = 1;
    qint32 firstChannel = -1;
    qint32 channelCount = 0;
    qint32 cabinetId = 0;

    /*!
        The text of a tooltip for the name: the non-empty parts among series,
        model and preset, in that order, joined by \a separator; preceded by
        "<count>×" and the separator when count is more than 1. A mixed name
        reads the "MULTIPLE" text of the "VynLocalizable" table instead. A name
        without any part reads the empty text.
    */
    QString getTooltipText(const QString& separator) const;
    //! getTooltipText() with one space as separator.
    QString defaultTooltipText() const { return getTooltipText(QStringLiteral(" ")); }

    bool operator==(const VynMultiPartName& o) const
    {
        return series == o.series && model == o.model && preset == o.preset &&
               bridged == o.bridged && mixed == o.mixed && count == o.count &&
               firstChannel == o.firstChannel && channelCount == o.channelCount &&
               cabinetId == o.cabinetId;
    }
    bool operator!=(const VynMultiPartName& o) const { return !(*this == o); }
};

Q_DECLARE_METATYPE(VynMultiPartName)
