list(APPEND VYNUI_SOURCES
    hints/vynoptimizedlabel.h hints/vynoptimizedlabel.cpp
    hints/vynlabeloptimizer.h hints/vynlabeloptimizer.cpp
)
