#include "vynui.h"

VynUI::VynUI(QQuickItem* parent)
    : QQuickItem(parent), m_testString(QStringLiteral("This is a very big test!"))
{}
