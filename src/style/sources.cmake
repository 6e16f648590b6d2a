list(APPEND VYNUI_SOURCES
    style/vyncolorutils.h style/vyncolorutils.cpp
)
