# What packages and descriptions tell of this release: who answers for it, and when it was made.
# The day stands in the changelog, "## 1.2.3 (2027-01-31)"; until then it is "(unreleased)", and the
# day is today's, or that of SOURCE_DATE_EPOCH, so that packages can be made again byte by byte.
set(CORVANE_MAINTAINER "The Corvane developers <maintainers@corvane.invalid>" CACHE STRING
    "Who answers for packages: Name <address>")
if(NOT CORVANE_MAINTAINER MATCHES "^[^<>]+ <([^<> ]+@[^<> ]+)>$")
    message(FATAL_ERROR "CORVANE_MAINTAINER is \"${CORVANE_MAINTAINER}\", not like \"Name <name@example.org>\"")
endif()
set(CORVANE_MAINTAINER_ADDRESS ${CMAKE_MATCH_1})

set_property(DIRECTORY ${PROJECT_SOURCE_DIR} APPEND PROPERTY
    CMAKE_CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/CHANGELOG.md)
file(STRINGS ${PROJECT_SOURCE_DIR}/CHANGELOG.md CORVANE_RELEASE_DAY REGEX "^## " LIMIT_COUNT 1)
string(REPLACE . "\\." version_pattern ${PROJECT_VERSION})
if(CORVANE_RELEASE_DAY MATCHES "^## ${version_pattern} \\(unreleased\\)$")
    set(CORVANE_RELEASE_KIND development)
    string(TIMESTAMP CORVANE_RELEASE_DAY "%Y-%m-%d" UTC)
elseif(CORVANE_RELEASE_DAY MATCHES "^## ${version_pattern} \\(([0-9]+-[0-9]+-[0-9]+)\\)$")
    set(CORVANE_RELEASE_KIND stable)
    set(CORVANE_RELEASE_DAY ${CMAKE_MATCH_1})
else()
    message(FATAL_ERROR "CHANGELOG.md begins with \"${CORVANE_RELEASE_DAY}\", not with "
        "\"## ${PROJECT_VERSION} (unreleased)\" or a day, such as (2027-01-31)")
endif()
