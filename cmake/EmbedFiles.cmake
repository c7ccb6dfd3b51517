# Writes the C++ source that holds the page's style and script, with their hashes for a content security policy.
#   cmake -D style=FILE -D script=FILE -D output=FILE -P EmbedFiles.cmake

# A number of up to 24 bits, in hexadecimal digits, as Base64.
function(base64_group out digits)
    set(alphabet "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/")
    string(LENGTH "${digits}" length)
    string(SUBSTRING "${digits}0000" 0 6 padded)
    set(text "")
    foreach(shift IN ITEMS 18 12 6 0)
        math(EXPR index "(0x${padded} >> ${shift}) & 63")
        string(SUBSTRING "${alphabet}" ${index} 1 character)
        string(APPEND text "${character}")
    endforeach()
    math(EXPR count "(${length} / 2) + 1")
    string(SUBSTRING "${text}" 0 ${count} text)
    string(SUBSTRING "${text}===" 0 4 text)
    set(${out} "${text}" PARENT_SCOPE)
endfunction()

function(embed out file)
    file(READ "${file}" text)
    string(REPLACE "\r\n" "\n" text "${text}") # as a browser reads them
    foreach(bad IN ITEMS "</s" "<!--" ")PAGE\"")
        string(FIND "${text}" "${bad}" at)
        if(NOT at EQUAL -1)
            message(FATAL_ERROR "${file} holds ${bad}, which would end it within the page")
        endif()
    endforeach()
    string(SHA256 hash "${text}")
    set(base64 "")
    foreach(at RANGE 0 63 6)
        string(SUBSTRING "${hash}" ${at} 6 digits)
        base64_group(group "${digits}")
        string(APPEND base64 "${group}")
    endforeach()
    set(${out} "{R\"PAGE(${text})PAGE\",\n \"${base64}\"}" PARENT_SCOPE)
endfunction()

embed(style_text "${style}")
embed(script_text "${script}")
file(
    WRITE "${output}"
    "#include \"wqspcfg/diagnosis/report/PageFiles.h\"

namespace wqspcfg::diagnosis {

const EmbeddedFile kPageStyle${style_text};
const EmbeddedFile kPageScript${script_text};

} // namespace wqspcfg::diagnosis
")
