# What every target of the project shares: warnings, precompiled Qt header, and the form of a room.

find_program(PASTORIX_CCACHE ccache)
if(PASTORIX_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER
        ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
        ${PASTORIX_CCACHE})
endif()

add_library(pastorix_avisos INTERFACE)
target_compile_options(pastorix_avisos INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # ccache can only keep what uses a precompiled header when the preprocessor leaves it in place.
    target_compile_options(pastorix_avisos INTERFACE -fpch-preprocess)
    # g++ 12 finds these in its own std::string and std::variant once they are inlined.
    target_compile_options(pastorix_avisos INTERFACE -Wno-restrict -Wno-stringop-overflow
        -Wno-maybe-uninitialized)
endif()
target_compile_definitions(pastorix_avisos INTERFACE QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_NO_FOREACH)
target_include_directories(pastorix_avisos INTERFACE ${CMAKE_SOURCE_DIR}/src)

# The precompiled Qt headers, some 300 MB: one for all rooms, programs and tests.
add_library(pastorix_pch OBJECT ${CMAKE_SOURCE_DIR}/cmake/qt_pch.cpp)
target_link_libraries(pastorix_pch PRIVATE pastorix_avisos Qt6::Widgets)
target_precompile_headers(pastorix_pch PRIVATE ${CMAKE_SOURCE_DIR}/cmake/qt_pch.h)

# pastorix_sala(name [WIDGETS] FUENTES ... [USA ...]): one library for one room of the house. Includes are written
# from src/ ("store/Conexion.h"), so that the layering check can read the arrows from them.
function(pastorix_sala nombre)
    cmake_parse_arguments(S "WIDGETS;SIN_QT" "" "FUENTES;USA" ${ARGN})
    add_library(${nombre} STATIC ${S_FUENTES})
    target_link_libraries(${nombre} PRIVATE pastorix_avisos PUBLIC ${S_USA})
    target_include_directories(${nombre} PUBLIC ${CMAKE_SOURCE_DIR}/src)
    if(S_WIDGETS)
        set_target_properties(${nombre} PROPERTIES AUTOMOC ON)
        target_link_libraries(${nombre} PUBLIC Qt6::Widgets)
        target_precompile_headers(${nombre} REUSE_FROM pastorix_pch)
    elseif(NOT S_SIN_QT)
        target_link_libraries(${nombre} PUBLIC Qt6::Core)
    endif()
endfunction()
