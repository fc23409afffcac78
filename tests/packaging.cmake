# The program as a user installs it: `cmake --install` into a scratch prefix and, where dpkg-deb is
# there, the .deb that cpack makes, unpacked into a scratch root. Each copy must run and read the
# data installed beside it, not the source tree's, also when started by name through PATH, and
# carry its documents as Debian wants them; lintian, where it is installed, must find no error.
# Included by tests/CMakeLists.txt to add the test; run by CTest with `cmake -P` to do it. It uses
# the built programs and builds nothing, so it cannot race the build or other tests.

if(NOT CMAKE_SCRIPT_MODE_FILE)
  add_test(NAME packaging.InstalledProgramsReadTheirOwnData
    COMMAND ${CMAKE_COMMAND}
      -D BUILD_DIR=${PROJECT_BINARY_DIR}
      -D SCRATCH=${CMAKE_CURRENT_BINARY_DIR}/packaging
      -D CONFIG=$<CONFIG>
      -D GUI=${VELMORA_GUI}
      -D CPACK=${CMAKE_CPACK_COMMAND}
      -D VERSION=${PROJECT_VERSION}
      -P ${CMAKE_CURRENT_LIST_FILE})
  set_tests_properties(packaging.InstalledProgramsReadTheirOwnData PROPERTIES
    LABELS packaging TIMEOUT 300 SKIP_REGULAR_EXPRESSION "SKIPPED:")
  return()
endif()

function(run)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE code OUTPUT_VARIABLE out ERROR_VARIABLE err)
  if(NOT code EQUAL 0)
    string(REPLACE ";" " " command "${ARGN}")
    message(FATAL_ERROR "${command} exited ${code}\n${out}${err}")
  endif()
  set(out "${out}" PARENT_SCOPE)
endfunction()

# The desktop entry must start an installed program and name an installed icon; the AppStream
# file must name an installed desktop entry; both must pass their validators where present.
function(check_desktop_files prefix)
  set(entry ${prefix}/share/applications/org.velmora.Velmora.desktop)
  file(STRINGS ${entry} exec REGEX "^Exec=")
  file(STRINGS ${entry} icon REGEX "^Icon=")
  string(REGEX REPLACE "^Exec=([^ ]+).*" "\\1" exec "${exec}")
  string(REGEX REPLACE "^Icon=" "" icon "${icon}")
  if(NOT EXISTS ${prefix}/bin/${exec})
    message(FATAL_ERROR "the desktop entry starts ${exec}, which is not installed in bin/")
  endif()
  file(GLOB icons ${prefix}/share/icons/hicolor/*/apps/${icon}.*)
  if(NOT icons)
    message(FATAL_ERROR "the desktop entry's icon ${icon} is not installed under share/icons/hicolor")
  endif()
  set(metainfo ${prefix}/share/metainfo/org.velmora.Velmora.metainfo.xml)
  file(STRINGS ${metainfo} launchable REGEX "<launchable")
  string(REGEX REPLACE ".*>(.*)</launchable>.*" "\\1" launchable "${launchable}")
  if(NOT EXISTS ${prefix}/share/applications/${launchable})
    message(FATAL_ERROR "the AppStream file launches ${launchable}, which is not installed")
  endif()
  find_program(desktop_file_validate desktop-file-validate)
  if(desktop_file_validate)
    run(${desktop_file_validate} ${entry})
  endif()
  find_program(appstreamcli appstreamcli)
  if(appstreamcli)
    run(${appstreamcli} validate --no-net ${metainfo})
  endif()
endfunction()

# A desktop shows an entry once under each main category it names: one, then.
function(check_main_category entry)
  file(STRINGS ${entry} categories REGEX "^Categories=")
  # file(STRINGS) escapes the semicolons that separate the categories.
  string(REGEX REPLACE "^Categories=" "" categories "${categories}")
  string(REPLACE "\\;" ";" categories "${categories}")
  set(main)
  foreach(category IN LISTS categories)
    if(category MATCHES "^(AudioVideo|Audio|Video|Development|Education|Game|Graphics|Network|Office|Science|Settings|System|Utility)$")
      list(APPEND main ${category})
    endif()
  endforeach()
  list(LENGTH main count)
  if(NOT count EQUAL 1)
    message(FATAL_ERROR "the desktop entry names ${count} main categories (${main}), not one")
  endif()
endfunction()

# Manual pages compressed, each naming every option its program's --help names; the copyright in
# Debian's machine-readable format; the changelog compressed and at the package's version.
function(check_documents prefix)
  set(programs velmora-cli)
  if(GUI)
    list(APPEND programs velmora)
  endif()
  file(GLOB plain ${prefix}/share/man/man1/*.1)
  if(plain)
    message(FATAL_ERROR "manual pages installed uncompressed: ${plain}")
  endif()
  foreach(program IN LISTS programs)
    set(page ${prefix}/share/man/man1/${program}.1.gz)
    if(NOT EXISTS ${page})
      message(FATAL_ERROR "${program}(1) is not installed as ${page}")
    endif()
    run(${GZIP} -dc ${page})
    string(REPLACE "\\-" "-" manual "${out}")
    run(${prefix}/bin/${program} --help)
    string(REGEX MATCHALL "--[a-z][a-z-]*" options "${out}")
    list(REMOVE_DUPLICATES options)
    foreach(option IN LISTS options)
      string(FIND "${manual}" "${option}" found)
      if(found EQUAL -1)
        message(FATAL_ERROR "${program}(1) does not name ${option}, which ${program} --help names")
      endif()
    endforeach()
  endforeach()

  set(doc ${prefix}/share/doc/velmora)
  file(STRINGS ${doc}/copyright format LIMIT_COUNT 1)
  if(NOT format STREQUAL "Format: https://www.debian.org/doc/packaging-manuals/copyright-format/1.0/")
    message(FATAL_ERROR "${doc}/copyright is not in the machine-readable format: ${format}")
  endif()
  run(${GZIP} -dc ${doc}/changelog.gz)
  if(NOT out MATCHES "^velmora \\(${VERSION}\\) ")
    message(FATAL_ERROR "${doc}/changelog.gz does not begin with version ${VERSION}")
  endif()
endfunction()

# A search only the installed copy of the data can answer, asked of the program started by its
# path and by its bare name, as a desktop launcher or a shell starts it.
function(check_programs prefix)
  run(${prefix}/bin/velmora-cli "2+3")
  if(NOT out MATCHES "^5[ \n]*$")
    message(FATAL_ERROR "${prefix}/bin/velmora-cli \"2+3\" printed \"${out}\", not 5")
  endif()

  set(data ${prefix}/share/velmora/VLSupport/physicaldata.txt)
  file(READ ${data} text)
  set(value "read from the data installed in ${prefix}")
  string(REGEX REPLACE "(</[A-Za-z]+>[ \t\r\n]*)$"
    "<Category><Key>Packaging probe quokkafish</Key><Value>${value}</Value></Category>\n\\1" text "${text}")
  file(WRITE ${data} "${text}")

  run(${prefix}/bin/velmora-cli --action "Physical Data" quokkafish)
  string(FIND "${out}" "quokkafish: ${value}" found)
  if(found EQUAL -1)
    message(FATAL_ERROR "${prefix}/bin/velmora-cli did not search the data installed beside it:\n${out}")
  endif()
  set(path "$ENV{PATH}")
  set(ENV{PATH} "${prefix}/bin:${path}")
  execute_process(COMMAND velmora-cli --action "Physical Data" quokkafish
    WORKING_DIRECTORY ${SCRATCH} RESULT_VARIABLE code OUTPUT_VARIABLE out ERROR_VARIABLE err)
  set(ENV{PATH} "${path}")
  string(FIND "${out}" "quokkafish: ${value}" found)
  if(found EQUAL -1)
    message(FATAL_ERROR "velmora-cli started through PATH (argv[0] a bare name) did not search the data "
      "installed in ${prefix}; it exited ${code}:\n${out}${err}")
  endif()
endfunction()

file(REMOVE_RECURSE ${SCRATCH})
file(MAKE_DIRECTORY ${SCRATCH}/home)
# Nothing of the user's may stand in for the shipped data.
set(ENV{HOME} ${SCRATCH}/home)
set(ENV{XDG_CONFIG_HOME} ${SCRATCH}/home/config)
set(ENV{XDG_DATA_HOME} ${SCRATCH}/home/data)
set(ENV{XDG_CACHE_HOME} ${SCRATCH}/home/cache)
set(config)
set(cpack_config)
if(CONFIG)
  set(config --config ${CONFIG})
  set(cpack_config -C ${CONFIG})
endif()

find_program(GZIP gzip REQUIRED)
# A fresh prefix each run: files an earlier build installed must not stand in for this one's.
file(REMOVE_RECURSE ${SCRATCH}/prefix)
run(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${SCRATCH}/prefix ${config})
if(GUI)
  check_desktop_files(${SCRATCH}/prefix)
  check_main_category(${SCRATCH}/prefix/share/applications/org.velmora.Velmora.desktop)
endif()
check_documents(${SCRATCH}/prefix)
check_programs(${SCRATCH}/prefix)

find_program(dpkg_deb dpkg-deb)
if(NOT dpkg_deb)
  message("SKIPPED: dpkg-deb not found, so the .deb was neither made nor checked")
  return()
endif()

# cpack would first build the project's `preinstall` target; staging with `cmake --install` instead
# keeps this test from building anything. DESTDIR is cpack's staging folder.
file(CONFIGURE OUTPUT ${SCRATCH}/stage.cmake @ONLY CONTENT [=[
if("$ENV{DESTDIR}" STREQUAL "")
  message(FATAL_ERROR "cpack set no staging DESTDIR")
endif()
set(strip)
if(CPACK_STRIP_FILES)
  set(strip --strip)
endif()
execute_process(COMMAND "@CMAKE_COMMAND@" --install "@BUILD_DIR@" --prefix "${CPACK_PACKAGING_INSTALL_PREFIX}" ${strip}
  COMMAND_ERROR_IS_FATAL ANY OUTPUT_QUIET)
]=])
run(${CPACK} -G DEB --config ${BUILD_DIR}/CPackConfig.cmake -B ${SCRATCH}/deb ${cpack_config}
  -D CPACK_INSTALL_CMAKE_PROJECTS= -D CPACK_INSTALL_SCRIPTS=${SCRATCH}/stage.cmake)
file(GLOB deb ${SCRATCH}/deb/*.deb)
if(NOT deb)
  message(FATAL_ERROR "cpack made no .deb:\n${out}")
endif()

run(${dpkg_deb} --field ${deb} Depends)
# pugixml and PCRE2 are linked in; Qt is what the window needs from the system.
set(needed libc6)
if(GUI)
  list(APPEND needed libqt6widgets6 libqt6multimedia6)
endif()
foreach(library IN LISTS needed)
  if(NOT out MATCHES "${library}")
    message(FATAL_ERROR "the .deb does not depend on ${library}: Depends: ${out}")
  endif()
endforeach()

run(${dpkg_deb} -x ${deb} ${SCRATCH}/root)
if(GUI)
  check_desktop_files(${SCRATCH}/root/usr)
endif()
check_documents(${SCRATCH}/root/usr)
check_programs(${SCRATCH}/root/usr)

find_program(lintian lintian)
if(NOT lintian)
  message("SKIPPED: lintian not found, so the .deb was not checked by it")
  return()
endif()
execute_process(COMMAND ${lintian} --fail-on error --tag-display-limit 0 ${deb}
  RESULT_VARIABLE code OUTPUT_VARIABLE out ERROR_VARIABLE err)
if(NOT code EQUAL 0)
  message(FATAL_ERROR "lintian finds errors in the .deb:\n${out}${err}")
endif()
