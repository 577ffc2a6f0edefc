# SPDX-License-Identifier: MIT
# Run by cpack over the staged files.
# Debian wants its changelog and the manual pages compressed, without a time stamp.
file(GLOB documents
  ${CPACK_TEMPORARY_DIRECTORY}/usr/share/doc/*/changelog
  ${CPACK_TEMPORARY_DIRECTORY}/usr/share/man/man*/*.[1-9]
  ${CPACK_TEMPORARY_DIRECTORY}/usr/share/man/*/man*/*.[1-9])
if(documents)
  execute_process(COMMAND gzip -9 --no-name --force ${documents} COMMAND_ERROR_IS_FATAL ANY)
endif()
# cpack strips the symbols; the compiler's notes are left, and nobody needs them.
execute_process(COMMAND strip --remove-section=.comment --remove-section=.note ${CPACK_TEMPORARY_DIRECTORY}/usr/bin/lumora
  COMMAND_ERROR_IS_FATAL ANY)
