"""Records what a toolkit really sends, for tests/data/toolkits:

    record.py requests <toolkit> <schema> <address of the bus> <client command>...
    record.py replies  <toolkit> <schema> <address of the bus> <server command>...

The commands are those of tests/interop, and of the folders beside this file: a client is given the
folder of the schema, the address of the bus, the location of the server and the case; a server the
same without a location, prints its own, and ends with its standard input. The other side is played
from what this library wrote, tests/data/toolkits/korva.
"""

import http.server
import pathlib
import subprocess
import sys
import threading
import urllib.error
import urllib.request

CASES = ("tree", "texts", "empty-text", "nulls", "empty", "null-items", "omitted", "shared", "trigger")

kind, toolkit, schema, authority, *command = sys.argv[1:]
data = pathlib.Path(__file__).resolve().parent.parent / "data" / "toolkits"
out = data / toolkit
out.mkdir(parents=True, exist_ok=True)


def ours(case, side):
    return (data / "korva" / f"{case}-{side}.xml").read_bytes()


def record_requests():
    received = []
    served = None

    class Handler(http.server.BaseHTTPRequestHandler):
        protocol_version = "HTTP/1.0"

        def do_POST(self):
            if "chunked" in self.headers.get("Transfer-Encoding", ""):
                body = b""
                while size := int(self.rfile.readline(), 16):
                    body += self.rfile.read(size)
                    self.rfile.readline()
            else:
                body = self.rfile.read(int(self.headers["Content-Length"]))
            received.append(body)
            answer = ours(served, "reply")
            self.send_response(200)
            self.send_header("Content-Type", "text/xml; charset=utf-8")
            self.send_header("Content-Length", str(len(answer)))
            self.end_headers()
            self.wfile.write(answer)

        def log_message(self, *arguments):
            pass

    server = http.server.HTTPServer(("127.0.0.1", 0), Handler)
    threading.Thread(target=server.serve_forever, daemon=True).start()
    for served in CASES:
        received.clear()
        done = subprocess.run(
            command + [schema, authority, f"http://127.0.0.1:{server.server_port}/", served],
            capture_output=True, text=True, timeout=60)
        print(f"== {served}: {done.returncode}\n{done.stdout}{done.stderr[-2000:]}")
        if received:
            (out / f"{served}-request.xml").write_bytes(received[0])


def record_replies():
    for case in CASES:
        server = subprocess.Popen(command + [schema, authority, case], stdin=subprocess.PIPE,
                                  stdout=subprocess.PIPE, text=True)
        location = server.stdout.readline().strip()
        request = urllib.request.Request(location, data=ours(case, "request"), headers={
            "Content-Type": "text/xml; charset=utf-8", "SOAPAction": '""'})
        try:
            reply = urllib.request.urlopen(request, timeout=20).read()
        except urllib.error.HTTPError as error:
            reply = error.read()
        (out / f"{case}-reply.xml").write_bytes(reply)
        print(f"== {case}: {len(reply)} bytes")
        server.stdin.close()
        server.wait(timeout=20)


{"requests": record_requests, "replies": record_replies}[kind]()
