include(CMakeFindDependencyMacro)
find_dependency(ZelKivServices)
find_dependency(RapidJSON)
include(${CMAKE_CURRENT_LIST_DIR}/ZelKivTestingTargets.cmake)
