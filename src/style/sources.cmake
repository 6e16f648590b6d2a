list(APPEND VYNUI_SOURCES
    style/vyncolorutils.h style/vyncolorutils.cpp
    style/vynuiqmlconstants.h style/vynuiqmlconstants.cpp
    style/vynviewconstants.h
)
