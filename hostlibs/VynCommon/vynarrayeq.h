#pragma once

#include "vyncommonglobal.h"
#include "vyneqcommoneq.h"

/*!
    The EQ of a loudspeaker array: the same bands and on flag as a channel EQ, plus the index
    of the array element it belongs to. A channel shows its own EQ and the array EQs that feed it.
*/
class VYNCOMMON_EXPORT VynArrayEQ : public VynEQCommonEQ
{
    Q_OBJECT
    Q_PROPERTY(int elementIndex READ elementIndex WRITE setElementIndex NOTIFY elementIndexChanged)

public:
    explicit VynArrayEQ(QObject* parent = nullptr);
    ~VynArrayEQ() override;

    int elementIndex() const { return m_elementIndex; }
    void setElementIndex(int p_index);

signals:
    void elementIndexChanged();

private:
    int m_elementIndex = 0;
};
