# Copies the shipped data FROM one folder TO the program folder. An army file that is there already
# may be the player's own by now and stays.
file(GLOB_RECURSE files RELATIVE ${FROM} ${FROM}/*)
foreach(file IN LISTS files)
  if(file MATCHES "\\.army$" AND EXISTS ${TO}/${file})
    continue()
  endif()
  get_filename_component(folder ${TO}/${file} DIRECTORY)
  file(COPY ${FROM}/${file} DESTINATION ${folder})
endforeach()
