# Stands in for the host's five libraries where the extension is built without them: each has the names of its accessors
# for the linker to find, and nothing behind them. They are not installed.
function(accessor_library name)
    set(source "#include \"framework/abi/border.h\"\n")
    foreach(accessor IN LISTS ARGN)
        string(APPEND source "XBR_API void ${accessor}() {\n    __builtin_trap();\n}\n")
    endforeach()
    file(CONFIGURE OUTPUT ${name}.cpp CONTENT "${source}")
    add_library(${name} SHARED ${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp)
    target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR})
endfunction()

accessor_library(xbrsystem XBRGetPlugInManager XBRGetSignalHandler XBRGetFileTypeRegistry XBRGetSystem XBRGetSystemShell
    XBRGetFileSystem XBRGetPackageHandler)
accessor_library(xbrtext XBRJsonParse XBRJsonStringify XBRXmlParse XBRCreateTextStreamer XBRCreateStringDictionary
    XBRFoldCase XBRGetLocaleManager)
accessor_library(xbrgui XBRGetGraphicsHelper)
accessor_library(xbrnet XBRGetWebService)
accessor_library(xbrsecurity XBRGetCredentialManager)

# Behind every archive that calls one, as linkers that read once want it.
target_link_libraries(abi INTERFACE xbrsystem xbrtext xbrgui xbrnet xbrsecurity)
