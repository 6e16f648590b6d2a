list(APPEND VYNUI_SOURCES
    module/vynuiglobal.h
    module/vynui.h module/vynui.cpp
    module/vynuikey.h module/vynuikey.cpp
    module/vynuilocalizable.h module/vynuilocalizable.cpp
    module/vynuiplugin.h module/vynuiplugin.cpp
)
