# What scripts/bundle puts into its archive, for systems without Debian packages: programs with a run path of their own, the
# libraries that a desktop may lack, and the data. Installed as the component "bundle", and never by the package.
set(bundle_programs)
function(bundled_program name main library)
    add_executable(bundled_${name} EXCLUDE_FROM_ALL ${CMAKE_SOURCE_DIR}/src/${main})
    target_link_libraries(bundled_${name} PRIVATE ${library})
    # A run path that holds for the libraries of the libraries as well.
    target_link_options(bundled_${name} PRIVATE -Wl,--disable-new-dtags)
    set_target_properties(bundled_${name} PROPERTIES
        OUTPUT_NAME ${name}
        RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bundle/bin
        INSTALL_RPATH "$ORIGIN/../lib")
    install(TARGETS bundled_${name} RUNTIME_DEPENDENCY_SET bundled_libraries
        RUNTIME DESTINATION bin COMPONENT bundle EXCLUDE_FROM_ALL)
endfunction()
bundled_program(vandrel shell/main.cpp vandrel_game)
bundled_program(vandrel-replay replay/tool/main.cpp vandrel_replay_tool)

# The C and C++ libraries, GL, X and the sound client must be those of the system, since its drivers rest on them. Only
# libOpenGL comes along, which Debian's GL package does not bring.
install(RUNTIME_DEPENDENCY_SET bundled_libraries
    PRE_EXCLUDE_REGEXES
        "^ld-linux" "^lib(c|m|dl|rt|pthread|resolv|stdc\\+\\+|gcc_s)\\.so"
        "^lib(GL|GLX|EGL|GLdispatch|drm|gbm|glapi)\\.so" "^libX" "^libxcb" "^libxkbcommon" "^libwayland"
        "^lib(pulse|asound|pipewire)"
    POST_EXCLUDE_REGEXES "/lib(pulse|X|xcb)[^/]*\\.so"
    DESTINATION lib COMPONENT bundle EXCLUDE_FROM_ALL)

install(PROGRAMS bundle_launcher RENAME vandrel DESTINATION . COMPONENT bundle EXCLUDE_FROM_ALL)
install(DIRECTORY ${game_dir}/images ${game_dir}/newSound ${game_dir}/music ${game_dir}/shaders
    DESTINATION data COMPONENT bundle EXCLUDE_FROM_ALL)
install(FILES ${game_dir}/vandrel.ico DESTINATION data COMPONENT bundle EXCLUDE_FROM_ALL)
file(REAL_PATH ${game_dir}/fonts/OCRA.ttf bundle_font)
install(FILES ${bundle_font} RENAME OCRA.ttf DESTINATION data/fonts COMPONENT bundle EXCLUDE_FROM_ALL)
install(FILES copyright DESTINATION . COMPONENT bundle EXCLUDE_FROM_ALL)
