# Installs the build into a staging folder (DESTDIR) and runs the installed swale-calc on an
# installed example, as a user of the package would: the installed programs must find their
# program folder in ../share/swale and the PDF writer in ../lib/swale.
#   cmake -DBUILD_DIR=... -DSTAGE=... -P StagedInstall.cmake

set(prefix /opt/swale-staged)
set(root ${STAGE}${prefix})
file(REMOVE_RECURSE ${STAGE})
set(ENV{DESTDIR} ${STAGE})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${prefix}
                RESULT_VARIABLE result OUTPUT_QUIET)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "cmake --install failed: ${result}")
endif()

set(example "Roadside swale - required length")
foreach(file IN ITEMS
        bin/swale bin/swale-calc lib/swale/swale-pdf.so
        share/swale/DefWindowSize.ini share/swale/HelpImages.ini share/swale/Margins.ini
        share/swale/help/1.html share/swale/help/2.html share/swale/help/checks.html
        share/swale/help/swale-small.png
        "share/swale/Examples/${example}.swl"
        share/applications/org.tavro.Swale.desktop share/metainfo/org.tavro.Swale.metainfo.xml
        share/icons/hicolor/scalable/apps/swale.svg)
    if(NOT EXISTS "${root}/${file}")
        message(FATAL_ERROR "not installed: ${file}")
    endif()
endforeach()

# The checks topic holds the core's table of permissible shear in place of its marker line.
file(READ "${root}/share/swale/help/checks.html" checksTopic)
if(checksTopic MATCHES "permissible shear rows"
   OR NOT checksTopic MATCHES "<td rowspan=\"2\">Rock riprap</td><td>Rock riprap, 6 in</td>")
    message(FATAL_ERROR "the checks topic has no table of permissible shear")
endif()

# The installed calculator on the installed example: results, and the report through the module.
execute_process(COMMAND ${root}/bin/swale-calc --pdf ${STAGE}/report.pdf
                        "${root}/share/swale/Examples/${example}.swl"
                RESULT_VARIABLE result OUTPUT_VARIABLE report ERROR_VARIABLE errors)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "installed swale-calc exited with ${result}: ${errors}")
endif()
if(NOT report MATCHES "Length of channel, \\[L\\]")
    message(FATAL_ERROR "installed swale-calc printed no results:\n${report}")
endif()
file(SIZE ${STAGE}/report.pdf pdfSize)
if(pdfSize LESS 1000)
    message(FATAL_ERROR "installed swale-calc wrote no report (${pdfSize} bytes)")
endif()
file(REMOVE_RECURSE ${STAGE})
