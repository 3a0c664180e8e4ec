# SPDX-License-Identifier: MIT
# Zephrine.app. On a Mac it is signed ad hoc, that is, without an identity: enough to run on the
# machine that built it.
set(icon ${PROJECT_SOURCE_DIR}/packaging/macos/AppIcon.icns)
add_executable(zephrine MACOSX_BUNDLE app/main.cpp ${icon})
set_source_files_properties(${icon} PROPERTIES MACOSX_PACKAGE_LOCATION Resources)
target_link_libraries(zephrine PRIVATE zephrine_core zephrine_macos)
set_target_properties(zephrine PROPERTIES
  OUTPUT_NAME Zephrine
  MACOSX_BUNDLE_INFO_PLIST ${PROJECT_SOURCE_DIR}/packaging/macos/Info.plist.in
  MACOSX_BUNDLE_BUNDLE_NAME Zephrine
  MACOSX_BUNDLE_GUI_IDENTIFIER org.zephrine.Zephrine
  MACOSX_BUNDLE_SHORT_VERSION_STRING ${PROJECT_VERSION}
  MACOSX_BUNDLE_BUNDLE_VERSION ${PROJECT_VERSION}
  MACOSX_BUNDLE_ICON_FILE AppIcon
)
if(CMAKE_HOST_APPLE)
  add_custom_command(TARGET zephrine POST_BUILD
    COMMAND codesign --force --sign - $<TARGET_BUNDLE_DIR:zephrine>
    COMMENT "Signing Zephrine.app ad hoc" VERBATIM)
endif()
install(TARGETS zephrine BUNDLE DESTINATION .)
