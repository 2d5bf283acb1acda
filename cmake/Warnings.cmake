# rlx_strict(target): every warning is an error; sanitizers where they are asked for.
function(rlx_strict target)
    target_compile_options(${target} PRIVATE
        $<$<COMPILE_LANGUAGE:CXX>:-Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror>)
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
        # GCC 12 with -O2 and above sees an overlap in every literal + std::u16string (GCC bug 105651, fixed in 13).
        target_compile_options(${target} PRIVATE $<$<COMPILE_LANGUAGE:CXX>:-Wno-restrict>)
    endif()
    # Paths of the build machine stay out of the binaries.
    target_compile_options(${target} PRIVATE -ffile-prefix-map=${CMAKE_SOURCE_DIR}/=)
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        target_compile_options(${target} PRIVATE $<$<COMPILE_LANGUAGE:CXX>:-fpch-preprocess>)
    endif()
    if(RLX_SANITIZE)
        target_compile_options(${target} PRIVATE -O1 -fsanitize=address,undefined
            -fno-sanitize-recover=all -fno-omit-frame-pointer)
        target_link_options(${target} PRIVATE -fsanitize=address,undefined)
    endif()
    if(RLX_TSAN)
        # What the sanitizer adds makes GCC 12 see overlaps and overflows in the library's strings.
        target_compile_options(${target} PRIVATE -O1 -g -fsanitize=thread -Wno-error)
        target_link_options(${target} PRIVATE -fsanitize=thread)
    endif()
    if(RLX_FUZZ)
        target_compile_options(${target} PRIVATE -O1 -fsanitize=fuzzer-no-link,address,undefined)
        target_link_options(${target} PRIVATE -fsanitize=fuzzer-no-link,address,undefined)
    endif()
endfunction()
