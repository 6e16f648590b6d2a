list(APPEND VYNUI_SOURCES
    graphs/vynvumeterconstants.h graphs/vynvumeterconstants.cpp
    graphs/vynvumetermanager.h graphs/vynvumetermanager.cpp
    graphs/vynvumeteritem.h graphs/vynvumeteritem.cpp
    graphs/vyndyngraphdata.h graphs/vyndyngraphdata.cpp
    graphs/vyneqcurvemodel.h graphs/vyneqcurvemodel.cpp
    graphs/vyneqhosttypes.h
)
