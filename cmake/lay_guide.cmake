# Lays the guide, made anew, TO a folder: the text of the folder TEXT and the pictures that it names,
# which the program TOUR takes in OUT of the catalogs in DATA. It sees no display, so that no window
# opens on the builder's.
set(ENV{DISPLAY} "")
set(ENV{QT_QPA_PLATFORM} offscreen)
set(ENV{ASAN_OPTIONS} detect_leaks=0)  # the tests look for them
execute_process(COMMAND ${TOUR} ${DATA} ${OUT}
  RESULT_VARIABLE failed OUTPUT_VARIABLE said ERROR_VARIABLE said)
if(failed)
  message(FATAL_ERROR "${said}\nThe pictures of the guide could not be taken")
endif()

file(REMOVE_RECURSE ${TO})
file(GLOB sections ${TEXT}/*.md)
foreach(section IN LISTS sections)
  file(COPY ${section} DESTINATION ${TO})
  file(READ ${section} text)
  string(REGEX MATCHALL "\\]\\(pictures/[^)]+" links "${text}")
  foreach(link IN LISTS links)
    string(REPLACE "](" "${OUT}/" picture ${link})
    file(COPY ${picture} DESTINATION ${TO}/pictures)
  endforeach()
endforeach()
