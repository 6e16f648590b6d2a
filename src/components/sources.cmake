list(APPEND VYNUI_SOURCES
    components/vynuihosttypes.h
    components/vynuicomponent.h components/vynuicomponent.cpp
    components/vynuicomponentset.h components/vynuicomponentset.cpp
    components/vynuislidercomponent.h components/vynuislidercomponent.cpp
    components/vynuislidefieldcomponent.h components/vynuislidefieldcomponent.cpp
    components/vynuibuttonconfig.h
    components/vynuibuttoncomponent.h components/vynuibuttoncomponent.cpp
    components/vynledparamconfig.h
    components/vynuiledcomponent.h components/vynuiledcomponent.cpp
    components/vynuihandybuttoncomponent.h components/vynuihandybuttoncomponent.cpp
    components/vynuilabelcomponent.h components/vynuilabelcomponent.cpp
    components/vynuicablabelcomponent.h components/vynuicablabelcomponent.cpp
    components/vynuicombocomponent.h components/vynuicombocomponent.cpp
    components/vynuivumetercomponent.h components/vynuivumetercomponent.cpp
    components/vynuieqthumbnailcomponent.h components/vynuieqthumbnailcomponent.cpp
    components/vynuidynthumbnailcomponent.h components/vynuidynthumbnailcomponent.cpp
)
