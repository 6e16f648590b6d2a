#include "qapplicationmessagepresenter.h"

QApplicationMessagePresenter::~QApplicationMessagePresenter() = default;
