"""Calls a server as one of the cases says, and prints what zeep understood of the reply:

    client.py <folder of the schema> <address of the bus> <location of the server> <case>
"""

import sys

import lxml.etree
import zeep
import zeep.wsdl.attachments
import zeep.xsd

from bus import BYTES, TEXT, Bus, message_tree

schema, authority, location, case = sys.argv[1:]
bus = Bus(schema, authority)
types = bus.types
service = bus.client.create_service(
    f"{{{authority}/schemas/eventManagementService/1}}eventManagementServiceBinding", location)


def run(path="/content/report", values=(), options=(), header=None):
    return service.run(
        objectPath=path,
        parameterValues=values if values is zeep.xsd.Nil
        else bus.array("parameterValueArray", list(values)),
        options=options if options is zeep.xsd.Nil else bus.array("optionArray", list(options)),
        _soapheaders=None if header is None else {"halyardHeader": header})


def tree():
    header = types.halyardHeader(
        Warden=types.Warden(
            authenticityToken=BYTES,
            WardenPassport=types.WardenPassport(id="MTsx", isAnonymous=False),
            roles=bus.array("stringArray", ["Authors", "R&D"])),
        tracking=types.tracking(hopCount=2))
    region = types.parameterValue(name="region", value=bus.array("parmValueItemArray", [
        bus.item("EMEA", "Europe"),
        types.boundRangeParmValueItem(start=bus.item("1", "one"), end=bus.item("9", "nine")),
    ]))
    return run(header=header, values=[region], options=[
        bus.prompt(False),
        types.runOptionStringArray(
            name="outputFormat", value=bus.array("stringArray", ["PDF", "HTML"])),
        types.runOptionInt(name="verticalElements", value=-5),
    ])


def shared():
    option = bus.prompt(True)
    return run(options=[option, option])


# What zeep makes of a value that is left out is the value's absence; Nil is written as xsi:nil.
cases = {
    "tree": tree,
    "texts": lambda: run(TEXT, options=[
        types.runOptionString(name="burstKeyLimit", value="  two\nlines  ")]),
    "empty-text": lambda: run(
        "", options=[types.runOptionString(name="burstKeyLimit", value="")]),
    "nulls": lambda: run(zeep.xsd.Nil, zeep.xsd.Nil, zeep.xsd.Nil),
    "empty": run,
    "null-items": lambda: run(
        values=[types.parameterValue(name="region"), zeep.xsd.Nil],
        options=[bus.prompt(zeep.xsd.Nil), zeep.xsd.Nil]),
    "omitted": lambda: run(values=[types.parameterValue(name="region")], options=[bus.prompt()]),
    "shared": shared,
    "trigger": lambda: service.trigger("nightly"),
    "fault": run,
    "attachment": run,
    "refused": lambda: run(options=[types.runOptionBoolean(name="noSuchOption")]),
}

try:
    reply = cases[case]()
    if isinstance(reply, zeep.wsdl.attachments.MessagePack):
        # Parts are kept beside the message; what refers to them has no value.
        print(message_tree(reply.root), end="")
        for part in reply.attachments:
            print(f"part {part.content_id}: hex {part.content.hex()}")
    else:
        print(message_tree(reply), end="")
except zeep.exceptions.Fault as fault:
    print(f"fault: {fault.code}: {fault.message}")
    if fault.detail is not None:
        for element in fault.detail.iter(lxml.etree.Element):
            text = (element.text or "").strip("\n\t")
            print("  " * len(list(element.iterancestors("*"))[2:])
                  + lxml.etree.QName(element).localname + (f": {text}" if text else ""))
