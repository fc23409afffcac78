# Faults a desktop meets: kills in the midst of a write, a full disk, files that are no plain
# files, hostile drops, signals, a second start against a copy that is stopped, and another user
# on the same machine. Scripts under robustness/, run on the built programs.
set(ROBUSTNESS_DIR ${CMAKE_CURRENT_LIST_DIR})
set(ROBUSTNESS_ENV VELMORA_CLI=$<TARGET_FILE:velmora-cli> VELMORA_DATA=${PROJECT_SOURCE_DIR}/data)
if(VELMORA_GUI)
  list(APPEND ROBUSTNESS_ENV VELMORA=$<TARGET_FILE:velmora>)
endif()

# robustness_test(NAME SECONDS SCRIPT [ARGS...])
function(robustness_test name seconds script)
  add_test(NAME robustness.${name} COMMAND bash ${ROBUSTNESS_DIR}/${script} ${ARGN})
  set_tests_properties(robustness.${name} PROPERTIES
    ENVIRONMENT "${ROBUSTNESS_ENV}" LABELS robustness TIMEOUT ${seconds} SKIP_RETURN_CODE 77)
endfunction()

robustness_test(KillDuringMemoryWrite 180 kill_during_writes.sh memory 200)
robustness_test(KillDuringLogSave 180 kill_during_writes.sh log 150)
robustness_test(KillDuringPreferencesSave 180 kill_during_writes.sh prefs 200)
robustness_test(FullDisk 60 full_disk.sh)
robustness_test(NotAFile 60 not_a_file.sh)
robustness_test(LinkedFiles 60 linked_files.sh)
robustness_test(StringDoubling 60 string_doubling.sh)

if(VELMORA_GUI)
  robustness_test(SecondStart 90 second_start.sh)
  robustness_test(TerminationSignals 90 termination_signals.sh)
  robustness_test(OtherUser 120 other_user.sh)
endif()
