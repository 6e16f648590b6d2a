list(APPEND VYNUI_SOURCES
    graphs/vynvumeterconstants.h graphs/vynvumeterconstants.cpp
)
