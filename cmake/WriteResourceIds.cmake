# cmake -DHEADERS="a.h b.h" -DOUTPUT=ids.h -P WriteResourceIds.cmake
# Turns the enumerators "kName = number," and constants "TextId kName = number;" of the C++ headers into the #defines that
# the resource compiler reads, so that each number is written once.
separate_arguments(HEADERS)
set(text "/* Written by the build from the headers that number the resources. Do not edit. */\n")
foreach(header IN LISTS HEADERS)
    file(STRINGS ${header} lines REGEX "^(inline constexpr TextId| *) k[A-Za-z0-9]+ = [0-9]+[,;]")
    foreach(line IN LISTS lines)
        string(REGEX REPLACE "^.* (k[A-Za-z0-9]+) = ([0-9]+)[,;].*" "#define \\1 \\2" line "${line}")
        string(APPEND text "${line}\n")
    endforeach()
endforeach()
file(WRITE ${OUTPUT} "${text}")
