# Writes sbom.spdx.json: the software bill of materials of the package, in SPDX 2.3.
#
# It lists the program and the components that it contains or loads; packaging/notices/NOTICES.md describes
# them for people. SOURCE_DATE_EPOCH fixes its date.
string(TIMESTAMP created "%Y-%m-%dT%H:%M:%SZ" UTC)
set(sbom_packages "")
set(sbom_relations "")

# sbom_component(<id> <name> <version> <licence> <copyright> <relation>)
# The version may be empty. The relation is that of the program to the component, in the terms of SPDX.
function(sbom_component id name version licence copyright relation)
  if(version)
    set(version "
      \"versionInfo\": \"${version}\",")
  endif()
  string(APPEND sbom_packages ",
    {
      \"SPDXID\": \"SPDXRef-${id}\",
      \"name\": \"${name}\",${version}
      \"downloadLocation\": \"NOASSERTION\",
      \"filesAnalyzed\": false,
      \"licenseConcluded\": \"${licence}\",
      \"licenseDeclared\": \"${licence}\",
      \"copyrightText\": \"${copyright}\"
    }")
  string(APPEND sbom_relations ",
    {
      \"spdxElementId\": \"SPDXRef-VORNApp\",
      \"relationshipType\": \"${relation}\",
      \"relatedSpdxElement\": \"SPDXRef-${id}\"
    }")
  set(sbom_packages "${sbom_packages}" PARENT_SCOPE)
  set(sbom_relations "${sbom_relations}" PARENT_SCOPE)
endfunction()

sbom_component(Lato "Lato Regular" "" OFL-1.1 "2010-2014 tyPoland Lukasz Dziedzic" CONTAINS)
sbom_component(Qt "Qt" "${Qt6_VERSION}" LGPL-3.0-only "The Qt Company Ltd. and other contributors" DYNAMIC_LINK)
sbom_component(glog "glog" "${glog_VERSION}" BSD-3-Clause "Google Inc." DYNAMIC_LINK)
sbom_component(SQLite "SQLite" "" blessing NONE DEPENDS_ON)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  sbom_component(GCC "GCC runtime libraries" "${CMAKE_CXX_COMPILER_VERSION}"
    "GPL-3.0-or-later WITH GCC-exception-3.1" "Free Software Foundation, Inc." DYNAMIC_LINK)
endif()
if(MINGW)
  sbom_component(MinGW "MinGW-w64 runtime" "" ZPL-2.1 "the mingw-w64 project" STATIC_LINK)
  sbom_component(winpthreads "winpthreads" "" "MIT AND BSD-3-Clause"
    "mingw-w64 project, Lockless Inc." DYNAMIC_LINK)
endif()
if(VORN_PORTALHUB_LIBRARY)
  sbom_component(PortalHub "PortalHub" "" NOASSERTION NOASSERTION DYNAMIC_LINK)
endif()

set(VORN_SBOM "${CMAKE_CURRENT_BINARY_DIR}/sbom.spdx.json")
file(WRITE "${VORN_SBOM}" "{
  \"spdxVersion\": \"SPDX-2.3\",
  \"dataLicense\": \"CC0-1.0\",
  \"SPDXID\": \"SPDXRef-DOCUMENT\",
  \"name\": \"VORNApp-${PROJECT_VERSION}\",
  \"documentNamespace\": \"${PROJECT_HOMEPAGE_URL}/spdx/${CMAKE_SYSTEM_NAME}/${VORN_REVISION}\",
  \"creationInfo\": {
    \"created\": \"${created}\",
    \"creators\": [\"Tool: VORNApp-packaging-${PROJECT_VERSION}\", \"Organization: the VORNApp authors\"]
  },
  \"packages\": [
    {
      \"SPDXID\": \"SPDXRef-VORNApp\",
      \"name\": \"VORNApp\",
      \"versionInfo\": \"${PROJECT_VERSION}\",
      \"sourceInfo\": \"revision ${VORN_REVISION}\",
      \"downloadLocation\": \"NOASSERTION\",
      \"filesAnalyzed\": false,
      \"licenseConcluded\": \"MIT\",
      \"licenseDeclared\": \"MIT\",
      \"copyrightText\": \"2026 the VORNApp authors\"
    }${sbom_packages}
  ],
  \"relationships\": [
    {
      \"spdxElementId\": \"SPDXRef-DOCUMENT\",
      \"relationshipType\": \"DESCRIBES\",
      \"relatedSpdxElement\": \"SPDXRef-VORNApp\"
    }${sbom_relations}
  ]
}
")
