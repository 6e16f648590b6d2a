#include "vynuikey.h"

const QString VynUIKey::Settings::VynUIGroup = QStringLiteral("VynUI");
const QString VynUIKey::Settings::HiddenHints = QStringLiteral("hiddenHints");
const QString VynUIKey::Settings::HiddenHint = QStringLiteral("hiddenHint");

const QString VynUIKey::Frame::X = QStringLiteral("x");
const QString VynUIKey::Frame::Y = QStringLiteral("y");
const QString VynUIKey::Frame::Width = QStringLiteral("width");
const QString VynUIKey::Frame::Height = QStringLiteral("height");
