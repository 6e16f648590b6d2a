list(APPEND VYNUI_SOURCES
    style/vyncolorappearance.h style/vyncolorappearance.cpp
    style/vyncolorconstants.h
    style/vyncolorutils.h style/vyncolorutils.cpp
    style/vynhsbtransform.h
    style/vynuiqmlconstants.h style/vynuiqmlconstants.cpp
    style/vynuimetrics.def
    style/vynuimetrics.h style/vynuimetrics.cpp
    style/vynviewconstants.h
)
