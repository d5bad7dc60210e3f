"""Answers calls as one of the cases says, and tells on a GET how zeep understood the last one:

    server.py <folder of the schema> <address of the bus> <case>

Prints its location when it listens, and ends when its standard input does. Zeep has no server of its
own: here its reading and its writing of messages stand behind Python's.
"""

import http.server
import os
import sys
import threading

import lxml.etree
import zeep.xsd

from bus import BYTES, TEXT, Bus, message_tree

schema, authority, case = sys.argv[1:]
bus = Bus(schema, authority)
types = bus.types
understood = ""


def reply(details=(), **fields):
    return {"result": types.asynchReply(
        details=bus.array("asynchDetailArray", list(details)), status="complete", **fields)}


def status():
    return types.asynchDetailReportStatus(status="responseReady")


def tree():
    pages = types.asynchDetailReportOutput(
        outputObjects=bus.array("baseClassArray", [
            types.output(dataType=types.stringProp(value="text/html")),
            types.page(dataType=types.stringProp(value="text/plain")),
        ]),
        outputPages=bus.array("stringArray", ["<p>1</p>", TEXT]))
    attached = types.asynchDetailMIMEAttachment(data=BYTES, dataSize=7)
    primary = types.asynchRequest(
        objectPath="/content/report", options=bus.array("optionArray", [bus.prompt(True)]))
    header = {"halyardHeader": types.halyardHeader(tracking=types.tracking(hopCount=3))}
    return reply([status(), pages, attached], primaryRequest=primary) | {"_soapheaders": header}


def shared():
    detail = status()
    return reply([detail, detail])


cases = {
    "tree": tree,
    "texts": reply,
    "empty-text": lambda: reply([types.asynchDetailReportOutput(
        outputPages=bus.array("stringArray", ["", "two"]))]),
    "nulls": lambda: {"result": zeep.xsd.Nil},
    "empty": reply,
    "null-items": lambda: reply([
        zeep.xsd.Nil,
        types.asynchDetailReportOutput(
            outputPages=bus.array("stringArray", ["one", zeep.xsd.Nil, "three"])),
        types.asynchDetailReportStatus(status=zeep.xsd.Nil),
    ]),
    "omitted": lambda: {"result": types.asynchReply()},
    "shared": shared,
    "trigger": lambda: {"result": 42},
}


def answer(envelope):
    """The reply to a request: zeep's reading of the one, and its writing of the other."""
    global understood
    body = envelope.find("{*}Body")
    operation = bus.binding.get(lxml.etree.QName(body[0]).localname)
    understood = message_tree(operation.input.deserialize(envelope))
    return lxml.etree.tostring(
        operation.output.serialize(**cases[case]()).content, encoding="utf-8", xml_declaration=True)


class Handler(http.server.BaseHTTPRequestHandler):
    def do_POST(self):
        request = self.rfile.read(int(self.headers["Content-Length"]))
        self.send("text/xml", answer(lxml.etree.fromstring(request)))

    def do_GET(self):
        self.send("text/plain", understood.encode())

    def send(self, content_type, content):
        self.send_response(200)
        self.send_header("Content-Type", f"{content_type}; charset=utf-8")
        self.send_header("Content-Length", str(len(content)))
        self.end_headers()
        self.wfile.write(content)

    def log_message(self, *arguments):
        pass


server = http.server.HTTPServer(("127.0.0.1", 0), Handler)
print(f"http://127.0.0.1:{server.server_port}/", flush=True)
threading.Thread(target=server.serve_forever, daemon=True).start()
while os.read(0, 1):
    pass
