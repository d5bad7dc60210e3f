# The files of schema/.

# The scheme and host that they are written with, and so the default of KORVA_BUS_AUTHORITY.
set(KORVA_DEFAULT_AUTHORITY "http://bus.korva.example")

# bus.xsd and what it joins; the header that every service refers to.
set(KORVA_SCHEMA_FILES
    bus.xsd
    busHeader.xsd
    content.xsd
    search.xsd
    options.xsd
    parameters.xsd
    conversation.xsd
    specifications.xsd
    schedules.xsd
    services.xsd
    fields.xsd
    faults.xsd
    restrictedStrings.xsd
    enums.xsd
    properties.xsd
    arrays.xsd
    soap-encoding.xsd
    header.wsdl)

# What the compiler is given, in this order: the messages, then each service.
set(KORVA_WSDL_FILES
    messages.wsdl
    reportService.wsdl
    batchReportService.wsdl
    VelmoraTabulon.wsdl
    deliveryService.wsdl
    dispatcher.wsdl
    monitorService.wsdl
    contentManagerService.wsdl
    contentManagerCacheService.wsdl
    eventManagementService.wsdl
    mobileService.wsdl)
