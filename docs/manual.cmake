# Writes the manual as HTML: cmake -DCMARK=PROGRAM -DFROM=FOLDER -DTO=FOLDER -P manual.cmake
# Each page gets the titles of all pages at its side, and "index.html" shows nothing but those.
file(GLOB pages "${FROM}/*.md")

# The first line of a page without its mark.
function(read_title page result)
  file(STRINGS "${page}" title LIMIT_COUNT 1)
  string(REGEX REPLACE "^# *" "" title "${title}")
  set(${result} "${title}" PARENT_SCOPE)
endfunction()

set(links "")
foreach(page ${pages})
  get_filename_component(name "${page}" NAME_WE)
  read_title("${page}" title)
  string(APPEND links "<li><a href=\"${name}.html\">${title}</a></li>\n")
endforeach()

set(style "body { max-width: 46em; margin: 2em auto; padding: 0 1em; font: 16px/1.5 sans-serif; color-scheme: light dark }
nav ul { padding: 0 } nav li { display: inline-block; margin-right: 1em }
pre { padding: .8em; overflow: auto; background: #8882 } code { font: 14px monospace } img { max-width: 100% }
table { border-collapse: collapse } th, td { padding: .2em .6em; border: 1px solid #8888; text-align: left }")

function(write_page name title body)
  file(WRITE "${TO}/${name}.html" "<!DOCTYPE html>
<html lang=\"en\">
<head><meta charset=\"utf-8\"><title>${title}</title><style>
${style}
</style></head>
<body>
<nav><ul>
${links}</ul></nav>
${body}</body>
</html>
")
endfunction()

foreach(page ${pages})
  execute_process(COMMAND "${CMARK}" --extension table "${page}" OUTPUT_VARIABLE body COMMAND_ERROR_IS_FATAL ANY)
  string(REGEX REPLACE "href=\"([a-z-]+)\\.md" "href=\"\\1.html" body "${body}")
  get_filename_component(name "${page}" NAME_WE)
  read_title("${page}" title)
  write_page(${name} "${title}" "${body}")
endforeach()
file(COPY "${FROM}/pictures" DESTINATION "${TO}")
# Last, since it tells that all is done.
write_page(index "Manual" "<h1>Manual</h1>\n")
