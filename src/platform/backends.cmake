# The services as this desktop offers them. Only the program links this: features know interfaces.
velm_library(velm_backends
  SOURCES
    DisplayChoice.cpp
    files/dbus/DBusFileManager.cpp
    front/x11/DesktopEntries.cpp
    front/x11/X11FrontProgram.cpp
    login/xdg/XdgLoginItem.cpp
    makePlatform.cpp
    notifications/dbus/DBusNotifications.cpp
    overlay/x11/KeyboardLoan.cpp
    overlay/x11/StackingGuard.cpp
    overlay/x11/X11Overlay.cpp
    pasteboard/x11/LazyMimeData.cpp
    pasteboard/x11/QtClipboardShield.cpp
    pasteboard/x11/SelectionReader.cpp
    pasteboard/x11/SelectionRequest.cpp
    pasteboard/x11/SelectionThread.cpp
    pasteboard/x11/SelectionWire.cpp
    pasteboard/x11/X11Pasteboard.cpp
    pointer/x11/X11Pointer.cpp
    screens/qt/QtScreens.cpp
    sound/canberra/CanberraSound.cpp
    typing/x11/X11PasteKeys.cpp
    x11/NativePixels.cpp
    x11/X11Connection.cpp
  LINKS velm_platform Qt6::DBus PkgConfig::XCB PkgConfig::CANBERRA)

# The program's own sounds are made, not drawn from a collection.
add_executable(velm-sounds sound/synthesis/main.cpp sound/synthesis/Voice.cpp sound/synthesis/WavFile.cpp)
target_include_directories(velm-sounds PRIVATE ${CMAKE_SOURCE_DIR}/src)
velm_warnings(velm-sounds)
set(soundFolder ${CMAKE_BINARY_DIR}/share/velm/sounds)
set(soundFiles)
foreach(name pop glass tink bottle)
  list(APPEND soundFiles ${soundFolder}/${name}.wav)
endforeach()
add_custom_command(OUTPUT ${soundFiles}
  COMMAND ${CMAKE_COMMAND} -E make_directory ${soundFolder}
  COMMAND velm-sounds ${soundFolder}
  DEPENDS velm-sounds
  COMMENT "Synthesising the sounds")
add_custom_target(velm_sound_files ALL DEPENDS ${soundFiles})
add_dependencies(velm_backends velm_sound_files)
