#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Quillets developers
# SPDX-License-Identifier: MIT
"""A mail server on loopback, as people run them: mailServer.py none|starttls|tls CERTIFICATE. Without security anybody
may send, with it "ann" whose password is "secret". It tells its port, then each mail as a line of JSON."""
import json
import socket
import ssl
import sys

from aiosmtpd.controller import Controller
from aiosmtpd.smtp import AuthResult


class Mailbox:
    async def handle_DATA(self, server, session, envelope):
        mail = {"from": envelope.mail_from, "to": envelope.rcpt_tos, "content": envelope.content.decode("latin-1")}
        print(json.dumps(mail), flush=True)
        return "250 OK"


def authenticate(server, session, envelope, mechanism, data):
    return AuthResult(success=(data.login, data.password) == (b"ann", b"secret"), handled=False)


def main(security, certificate):
    with socket.socket() as probe:
        probe.bind(("127.0.0.1", 0))
        port = probe.getsockname()[1]
    options = {"hostname": "127.0.0.1", "port": port}
    if security != "none":
        context = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
        context.load_cert_chain(certificate)
        options |= {"authenticator": authenticate, "auth_required": True}
        options |= {"tls_context": context, "require_starttls": True} if security == "starttls" else {
            "ssl_context": context, "auth_require_tls": False}
    Controller(Mailbox(), **options).start()
    print(port, flush=True)
    sys.stdin.read()  # Until whoever has started it goes.


main(*sys.argv[1:])
