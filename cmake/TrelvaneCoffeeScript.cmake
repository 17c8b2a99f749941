# The CoffeeScript compiler in its browser form. The package comes from npm,
# pinned by package-lock.json, at the configure step; its modules are put
# together at build time.
find_program(NODE_PROGRAM NAMES node nodejs)
if(NOT NODE_PROGRAM)
    trelvane_missing("Node" nodejs)
endif()
find_program(NPM_PROGRAM NAMES npm npm.cmd)
if(NOT NPM_PROGRAM)
    trelvane_missing("npm" npm)
endif()

# The folder of the package, for those who compare with it.
set(TRELVANE_COFFEE_SCRIPT_PACKAGE ${CMAKE_BINARY_DIR}/npm/node_modules/coffee-script)

function(trelvane_fetch_coffee_script)
    set(folder ${CMAKE_BINARY_DIR}/npm)
    set(package ${TRELVANE_COFFEE_SCRIPT_PACKAGE})
    set(inputs ${CMAKE_SOURCE_DIR}/package.json ${CMAKE_SOURCE_DIR}/package-lock.json)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${inputs})
    file(SHA256 ${CMAKE_SOURCE_DIR}/package-lock.json wanted)
    set(present "")
    if(EXISTS ${folder}/fetched AND EXISTS ${package}/package.json)
        file(READ ${folder}/fetched present)
    endif()
    if(NOT present STREQUAL wanted)
        message(STATUS "Fetching the CoffeeScript compiler")
        file(MAKE_DIRECTORY ${folder})
        file(COPY ${inputs} ${CMAKE_SOURCE_DIR}/.npmrc DESTINATION ${folder})
        execute_process(
            COMMAND ${NPM_PROGRAM} ci --ignore-scripts --no-audit --no-fund
            WORKING_DIRECTORY ${folder}
            RESULT_VARIABLE result
            OUTPUT_QUIET
            ERROR_VARIABLE problem)
        if(NOT result EQUAL 0)
            message(FATAL_ERROR "The CoffeeScript compiler could not be fetched with npm.\n${problem}")
        endif()
        file(WRITE ${folder}/fetched ${wanted})
    endif()
endfunction()

# trelvane_add_coffee_script(<collection> <name in it>)
function(trelvane_add_coffee_script collection name)
    trelvane_fetch_coffee_script()
    set(package ${TRELVANE_COFFEE_SCRIPT_PACKAGE})
    set(bundle ${CMAKE_CURRENT_BINARY_DIR}/coffee-script.js)
    set(script ${CMAKE_SOURCE_DIR}/scripts/bundle-coffee-script.js)
    add_custom_command(OUTPUT ${bundle}
        COMMAND ${NODE_PROGRAM} ${script} ${package} ${bundle}
        DEPENDS ${script} ${package}/package.json
        COMMENT "Putting the CoffeeScript compiler together"
        VERBATIM)
    trelvane_resource(${collection} ${name} ${bundle})
endfunction()
