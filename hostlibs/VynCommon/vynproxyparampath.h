#pragma once

#include "vyncommonglobal.h"
#include "vynfamilyutils.h"

#include <QList>
#include <QMetaType>
#include <QObject>
#include <QString>

/*!
    The name of one device parameter, as a path from the device down to the
    parameter: "Amp[3]/Channel[2]/Gain".

    A path is a list of elements. Each element has a name, an optional index
    (a channel or band number, -1 when absent) and a numeric id. The id
    identifies the kind of parameter independently of its wording; it comes
    from the registry of known names (registerNameId(), with built-in ids for
    the common names) unless the text form gives it explicitly with '#':
    "Amp[3]/Meter#111".

    Text form: elements separated by '/', each "Name", "Name[index]",
    "Name#id" or "Name[index]#id". Leading, trailing and doubled '/' are
    ignored; names may not contain '/', '[', ']' or '#'. Text that does not
    parse gives the empty path. toString() writes '#id' only when the id
    differs from the registered id of the name, so fromString(toString(p)) == p.

    Paths order element by element (name, then index, then id), a prefix before
    any longer path, so they serve as map keys. The empty path, EmptyPath, has
    the empty text.
*/
class VYNCOMMON_EXPORT VynProxyParamPath
{
    Q_GADGET
    Q_PROPERTY(QString text READ toString)
    Q_PROPERTY(bool empty READ isEmpty)
    Q_PROPERTY(int lastName READ getLastName)
    Q_PROPERTY(QString lastNameText READ getLastNameText)

public:
    struct Element
    {
        QString name;
        int index = -1;
        int id = 0;

        bool operator==(const Element& other) const
        {
            return id == other.id && index == other.index && name == other.name;
        }
        bool operator!=(const Element& other) const { return !(*this == other); }
    };

    static const VynProxyParamPath EmptyPath;

    VynProxyParamPath() = default;
    explicit VynProxyParamPath(const QList<Element>& elements);

    //! Parses the text form; \a ok (optional) tells whether the text was valid.
    static VynProxyParamPath fromString(const QString& text, bool* ok = nullptr);
    Q_INVOKABLE QString toString() const;
    //! The path's string value, the same as toString().
    QString getStringValue() const { return toString(); }

    bool isEmpty() const { return m_elements.isEmpty(); }
    int count() const { return static_cast<int>(m_elements.size()); }
    const QList<Element>& elements() const { return m_elements; }
    Element elementAt(int position) const { return m_elements.value(position); }

    //! This path with \a element added at the end.
    VynProxyParamPath appended(const Element& element) const;
    //! This path with \a element put in front.
    VynProxyParamPath prefixed(const Element& element) const;
    //! The path without its last element (the empty path stays empty).
    VynProxyParamPath parent() const;

    //! Numeric id of the last element, 0 for the empty path.
    int getLastName() const;
    //! Name of the last element, empty for the empty path.
    QString getLastNameText() const;

    /*!
        The display name of the parameter for a device family: the
        "VynParamNames" localisation text of "<family>/<name>" or else
        "<name>" (with "_SHORT" appended to the key first when \a shortForm is
        asked, falling back to the long form), else the name itself. An index
        on the last element is appended after a space ("Channel[2]" gives
        "Channel 2").
    */
    QString getLocalizedNameForFamily(VynFamilyUtils::VynDeviceFamily family,
                                      bool shortForm = false) const;

    //! Negative, zero or positive as this path orders before, equal to or after \a other.
    int compare(const VynProxyParamPath& other) const;

    bool operator==(const VynProxyParamPath& other) const { return m_elements == other.m_elements; }
    bool operator!=(const VynProxyParamPath& other) const { return !(*this == other); }
    bool operator<(const VynProxyParamPath& other) const { return compare(other) < 0; }

    //! Registers the numeric id used for elements named \a name.
    static void registerNameId(const QString& name, int id);
    //! The registered id of \a name, 0 when unknown.
    static int nameId(const QString& name);

private:
    QList<Element> m_elements;
};

VYNCOMMON_EXPORT size_t qHash(const VynProxyParamPath& path, size_t seed = 0);

Q_DECLARE_METATYPE(VynProxyParamPath)
