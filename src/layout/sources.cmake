list(APPEND VYNUI_SOURCES
    layout/vynviewutils.h layout/vynviewutils.cpp
)
