#!/usr/bin/env python3
"""Another user's trap: listens on unix sockets at the given paths and records in LOG, a line
each, every connection, every byte received, and every end of a connection. Anyone may
connect (mode 0777).
  squatter.py LOG PATH..."""
import os
import selectors
import socket
import sys

log_path, paths = sys.argv[1], sys.argv[2:]
selector = selectors.DefaultSelector()
for path in paths:
    server = socket.socket(socket.AF_UNIX, socket.SOCK_STREAM)
    server.bind(path)
    os.chmod(path, 0o777)
    server.listen(16)
    selector.register(server, selectors.EVENT_READ, path)
with open(log_path, "a") as log:
    while True:
        for key, _ in selector.select():
            if isinstance(key.data, str):
                connection, _ = key.fileobj.accept()
                log.write(f"connection on {key.data}\n")
                selector.register(connection, selectors.EVENT_READ, (key.data,))
                continue
            data = key.fileobj.recv(65536)
            if data:
                log.write(f"received on {key.data[0]}: {data!r}\n")
            else:
                log.write(f"closed on {key.data[0]}\n")
                selector.unregister(key.fileobj)
                key.fileobj.close()
            log.flush()
        log.flush()
