#pragma once

#include "vynuiglobal.h"

#include "vynviewutils.h"

#include <vynproxyparampath.h>

#include <QMetaType>
#include <QObject>
#include <QtQml/qqmlregistration.h>

/*!
    One parameter an LED watches, and the state the LED takes from it.

    - path: the watched parameter; addPath: a second parameter read with it
      (for example the channel whose status qualifies the first), empty when
      none.
    - state: the LED state the parameter maps to.
    - lowerThs and upperThs: the raw-value window, inclusive, in which the
      parameter counts as active.
    - skipMultiple: the parameter is left out when the LED stands for a
      selection of several devices.
    - flags: bit kDefaultFlag marks the default configuration, the one the LED
      shows when no other applies (isDefault reads and writes that bit).
    - priority: 0 keeps the configuration in insertion order; 1 or more
      sorts the LED's list by priority (see VynUILedComponent).

    sameConfig() compares everything but the priority: it is how an LED finds
    the configuration whose priority it is asked to change.
*/
struct VYNUI_EXPORT VynLedParamConfig
{
    Q_GADGET
    QML_VALUE_TYPE(vynLedParamConfig)
    Q_PROPERTY(VynProxyParamPath path MEMBER path)
    Q_PROPERTY(VynProxyParamPath addPath MEMBER addPath)
    Q_PROPERTY(VynViewUtils::VynLedState state MEMBER state)
    Q_PROPERTY(int flags MEMBER flags)
    Q_PROPERTY(bool isDefault READ isDefault WRITE setDefault)
    Q_PROPERTY(int priority MEMBER priority)
    Q_PROPERTY(int lowerThs MEMBER lowerThs)
    Q_PROPERTY(int upperThs MEMBER upperThs)
    Q_PROPERTY(bool skipMultiple MEMBER skipMultiple)

public:
    static constexpr int kDefaultFlag = 0x1;

    VynProxyParamPath path;
    VynProxyParamPath addPath;
    VynViewUtils::VynLedState state = VynViewUtils::VynLedStateGray;
    int flags = 0;
    int priority = 0;
    int lowerThs = 0;
    int upperThs = 0;
    bool skipMultiple = false;

    bool isDefault() const { return (flags & kDefaultFlag) != 0; }
    void setDefault(bool on) { flags = on ? (flags | kDefaultFlag) : (flags & ~kDefaultFlag); }

    //! Equality of every field except priority.
    bool sameConfig(const VynLedParamConfig& o) const
    {
        return path == o.path && addPath == o.addPath && state == o.state && flags == o.flags &&
               lowerThs == o.lowerThs && upperThs == o.upperThs && skipMultiple == o.skipMultiple;
    }
    bool operator==(const VynLedParamConfig& o) const
    {
        return sameConfig(o) && priority == o.priority;
    }
    bool operator!=(const VynLedParamConfig& o) const { return !(*this == o); }
};

Q_DECLARE_METATYPE(VynLedParamConfig)
