# Where the programs go: they look for their module and their data beside "bin", in the same prefix.
install(TARGETS rlx roamlytix-feedd RUNTIME DESTINATION bin)
if(TARGET roamlytix)
    install(TARGETS roamlytix RUNTIME DESTINATION bin)
endif()
install(TARGETS rlx_http LIBRARY DESTINATION lib/roamlytix)
install(DIRECTORY data/ DESTINATION share/roamlytix
    PATTERN make EXCLUDE
    PATTERN icons EXCLUDE
    PATTERN __pycache__ EXCLUDE
    PATTERN ".*" EXCLUDE)
