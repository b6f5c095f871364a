include(CMakeFindDependencyMacro)
find_dependency(Boost)
find_dependency(Qt6 6.4 COMPONENTS Core Gui Qml Quick)
include(${CMAKE_CURRENT_LIST_DIR}/TambleClientControlTargets.cmake)
