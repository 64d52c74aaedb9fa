# The schema files that the binding is generated from, one a namespace.
set(TOLVIK_SCHEMA_DIR ${CMAKE_CURRENT_LIST_DIR})
set(TOLVIK_SCHEMAS
    app.xsd
    bldg.xsd
    brid.xsd
    component.xsd
    core.xsd
    dem.xsd
    energy.xsd
    epadesa.xsd
    frn.xsd
    gen.xsd
    gml.xsd
    grp.xsd
    ladmfr.xsd
    luse.xsd
    namespace.xsd
    pivotEnergy.xsd
    SMIL20.xsd
    SMIL20_Language.xsd
    tex.xsd
    tran.xsd
    tun.xsd
    utility.xsd
    veg.xsd
    wtr.xsd
    xAL_2_0.xsd
    xlink.xsd)
list(TRANSFORM TOLVIK_SCHEMAS PREPEND ${TOLVIK_SCHEMA_DIR}/)
