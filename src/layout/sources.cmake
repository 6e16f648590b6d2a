list(APPEND VYNUI_SOURCES
    layout/vynviewutils.h layout/vynviewutils.cpp
    layout/vynoverimagegridutility.h layout/vynoverimagegridutility.cpp
)
