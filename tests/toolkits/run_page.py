"""Runs the commands of a page of docs/toolkits in an empty folder:

    run_page.py <page> <folder of the schema> <address of the bus>

The ports that the page names are replaced by a free one. A block that names a file is written to it; the sh blocks run one after the other. To them $schema is the
folder of the schema, $location the address of a server, and $request a file with an envelope, both as this
library would have it: they are tests/data/toolkits/korva. The client must have read the reply, and the
server have answered.
"""

import http.server
import os
import pathlib
import re
import socket
import subprocess
import sys
import tempfile
import threading

RECORDED = "http://bus.korva.example"

page, schema, authority = sys.argv[1:]
data = pathlib.Path(__file__).resolve().parent.parent / "data" / "toolkits" / "korva"


def ours(name):
    return (data / name).read_text(encoding="utf-8").replace(RECORDED, authority).encode()


class Handler(http.server.BaseHTTPRequestHandler):
    def do_POST(self):
        self.rfile.read(int(self.headers["Content-Length"]))
        answer = ours("tree-reply.xml")
        self.send_response(200)
        self.send_header("Content-Type", "text/xml; charset=utf-8")
        self.send_header("Content-Length", str(len(answer)))
        self.end_headers()
        self.wfile.write(answer)

    def log_message(self, *arguments):
        pass


server = http.server.HTTPServer(("127.0.0.1", 0), Handler)
threading.Thread(target=server.serve_forever, daemon=True).start()
with socket.create_server(("127.0.0.1", 0)) as free:
    port = free.getsockname()[1]
text = pathlib.Path(page).read_text(encoding="utf-8").replace(RECORDED, authority)
text = re.sub(r"\b808[0-9]\b", str(port), text)
commands = "set -euo pipefail\n"
with tempfile.TemporaryDirectory() as folder:
    for name, content in re.findall(r"^```(.*?)\n(.*?)^```$", text, re.MULTILINE | re.DOTALL):
        if name == "sh":
            commands += content
        else:
            pathlib.Path(folder, name.split()[1]).write_text(content, encoding="utf-8")
    request = pathlib.Path(folder, "request.xml")
    request.write_bytes(ours("trigger-request.xml"))
    done = subprocess.run(
        ["bash", "-c", commands], cwd=folder, stdout=subprocess.PIPE, text=True, timeout=300,
        env=os.environ | {
            "schema": schema, "request": str(request),
            "location": f"http://127.0.0.1:{server.server_port}/"})
print(done.stdout)
if done.returncode != 0 or not re.search("^complete$", done.stdout, re.MULTILINE) \
        or not re.search(">42</", done.stdout):
    sys.exit(f"{page}: the commands ended with {done.returncode}")
