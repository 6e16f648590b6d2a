#include "vynarrayeq.h"

VynArrayEQ::VynArrayEQ(QObject* parent) : VynEQCommonEQ(parent) {}

VynArrayEQ::~VynArrayEQ() = default;

void VynArrayEQ::setElementIndex(int p_index)
{
    if (m_elementIndex == p_index)
        return;
    m_elementIndex = p_index;
    emit elementIndexChanged();
}
