# SPDX-License-Identifier: MIT
# What a package holds: the program, its entry in the menu of applications, and the icon of both.
include(GNUInstallDirs)
set(icons ${PROJECT_SOURCE_DIR}/src/platform/qt/resources)
install(TARGETS zephrine)
install(FILES ${CMAKE_CURRENT_LIST_DIR}/zephrine.desktop
  DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${icons}/AppIcon.svg RENAME zephrine.svg
  DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
foreach(side 16 22 24 32 48 64 128 256)
  install(FILES ${icons}/AppIcon-${side}.png RENAME zephrine.png
    DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/${side}x${side}/apps)
endforeach()
