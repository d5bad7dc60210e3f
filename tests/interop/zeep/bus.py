"""What both ends share: the schema by its WSDL, the cases' values, and a way to print what arrived."""

import json

import zeep
from zeep.transports import Transport
from zeep.xsd.valueobjects import CompoundValue

# Text with all that needs escaping in XML, and letters of one to four bytes.
TEXT = "a<b> & \"c\" 'd' ]]> é ß 漢字 😀\ttab"

# Bytes that are neither text nor end at a NUL.
BYTES = b"\x00\x01\xfe\xffabc"


class LoopbackTransport(Transport):
    """Fetches nothing: all that a WSDL refers to lies beside it."""

    def load(self, url):
        if url.startswith(("http:", "https:")):
            raise RuntimeError(f"it looks for {url}")
        return super().load(url)


class Bus:
    """The event management service."""

    def __init__(self, schema, authority):
        self.namespace = f"{authority}/schemas/halyardns/3/"
        self.client = zeep.Client(
            f"{schema}/eventManagementService.wsdl",
            transport=LoopbackTransport(timeout=20, operation_timeout=20))
        self.types = self.client.type_factory(self.namespace)
        self.binding = self.client.service._binding

    def array(self, name, items):
        return getattr(self.types, name)(items)

    def item(self, use, display):
        return self.types.simpleParmValueItem(inclusive=True, display=display, use=use)

    def prompt(self, value=None):
        return self.types.runOptionBoolean(name="prompt", value=value)


def tree(name, value, indent=""):
    """A value as the tests describe it. Of an object, what has no value is left out."""
    line = f"{indent}{name}: "
    if isinstance(value, list):
        return line + f"array of {len(value)}\n" + "".join(
            tree(f"[{i}]", item, indent + "  ") for i, item in enumerate(value, 1))
    if isinstance(value, CompoundValue):
        return line + f"{value._xsd_type.name}\n" + "".join(
            tree(field, child, indent + "  ")
            for field, child in value.__values__.items()
            if child is not None and child != [])
    if isinstance(value, bytes):
        return line + f"hex {value.hex()}\n"
    return line + json.dumps(value, ensure_ascii=False) + "\n"


def message_tree(message):
    """The header, if it has an entry, and each parameter of a message that was read."""
    text = ""
    if "header" in message and message.header is not None and message.header.halyardHeader:
        text += tree("header", message.header.halyardHeader)
    if message.body is not None:
        for name, value in message.body.__values__.items():
            text += tree(name, value)
    return text
