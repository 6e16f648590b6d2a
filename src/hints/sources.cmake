list(APPEND VYNUI_SOURCES
    hints/vynoptimizedlabel.h hints/vynoptimizedlabel.cpp
    hints/vynlabeloptimizer.h hints/vynlabeloptimizer.cpp
    hints/vynhintdata.h hints/vynhintdata.cpp
    hints/vynhintmanager.h hints/vynhintmanager.cpp
)
