list(APPEND VYNUI_SOURCES
    components/vynuihosttypes.h
    components/vynuicomponent.h components/vynuicomponent.cpp
    components/vynuicomponentset.h components/vynuicomponentset.cpp
    components/vynuislidercomponent.h components/vynuislidercomponent.cpp
    components/vynuislidefieldcomponent.h components/vynuislidefieldcomponent.cpp
)
