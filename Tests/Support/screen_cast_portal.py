#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
# SPDX-License-Identifier: MIT

"""screen_cast_portal.py LOG PICTURE [PROPERTY...]: a portal for screen casts on the session bus.

Its screen is what a GStreamer source element paints: "PICTURE PROPERTY... ! CAPS". As a desktop does,
it asks its user (who always agrees), or restores a choice by a token that can be used once. LOG gets a
line for each: "asked" or "restored". With the PICTURE "refuse" the user does not agree.
"""

import json
import os
import socket
import subprocess
import sys
import time

from gi.repository import Gio, GLib

INTERFACE = """
<node>
  <interface name="org.freedesktop.portal.ScreenCast">
    <method name="CreateSession">
      <arg type="a{sv}" direction="in"/><arg type="o" direction="out"/>
    </method>
    <method name="SelectSources">
      <arg type="o" direction="in"/><arg type="a{sv}" direction="in"/><arg type="o" direction="out"/>
    </method>
    <method name="Start">
      <arg type="o" direction="in"/><arg type="s" direction="in"/><arg type="a{sv}" direction="in"/>
      <arg type="o" direction="out"/>
    </method>
    <method name="OpenPipeWireRemote">
      <arg type="o" direction="in"/><arg type="a{sv}" direction="in"/><arg type="h" direction="out"/>
    </method>
    <property name="AvailableCursorModes" type="u" access="read"/>
    <property name="version" type="u" access="read"/>
  </interface>
</node>
"""
NODE_NAME = "px-test-screen"


class Portal:
    def __init__(self, connection, log, picture):
        self.connection = connection
        self.log = log
        self.picture = picture
        self.tokens = set()
        self.token_count = 0
        self.offered = None
        self.painter = None

    def call(self, _connection, sender, _path, _interface, method, arguments, invocation):
        if method == "OpenPipeWireRemote":
            self.open_remote(invocation)
            return
        options = arguments.unpack()[-1]
        request = "/org/freedesktop/portal/desktop/request/%s/%s" % (
            sender[1:].replace(".", "_"), options["handle_token"])
        response, results = getattr(self, method)(options)
        # The answer comes before the call returns: a client has to listen before it asks.
        self.connection.emit_signal(sender, request, "org.freedesktop.portal.Request", "Response",
                                    GLib.Variant("(ua{sv})", (response, results)))
        invocation.return_value(GLib.Variant("(o)", (request,)))

    def CreateSession(self, options):
        session = "/org/freedesktop/portal/desktop/session/" + options["session_handle_token"]
        return 0, {"session_handle": GLib.Variant("s", session)}

    def SelectSources(self, options):
        assert options["persist_mode"] == 2
        self.offered = options.get("restore_token")
        return 0, {}

    def Start(self, _options):
        if self.picture[0] == "refuse":
            return 1, {}
        is_known = self.offered in self.tokens
        self.tokens.discard(self.offered)
        self.log.write("restored\n" if is_known else "asked\n")
        self.log.flush()
        self.token_count += 1
        token = "token-%d" % self.token_count
        self.tokens.add(token)
        return 0, {"streams": GLib.Variant("a(ua{sv})", [(self.paint(), {})]),
                   "restore_token": GLib.Variant("s", token)}

    def paint(self):
        self.stop_painting()
        self.painter = subprocess.Popen(
            ["gst-launch-1.0", "-q", *self.picture, "!", "pipewiresink", "mode=provide",
             "stream-properties=properties,node.name=" + NODE_NAME])
        for _ in range(500):
            dump = subprocess.run(["pw-dump"], capture_output=True, check=False).stdout
            for entry in json.loads(dump or "[]"):
                properties = (entry.get("info") or {}).get("props") or {}
                if properties.get("node.name") == NODE_NAME and "Node" in entry["type"]:
                    return entry["id"]
            time.sleep(0.02)
        sys.exit("the screen is not in PipeWire")

    def open_remote(self, invocation):
        remote = socket.socket(socket.AF_UNIX, socket.SOCK_STREAM)
        remote.connect(os.path.join(os.environ["XDG_RUNTIME_DIR"], "pipewire-0"))
        descriptors = Gio.UnixFDList.new()
        index = descriptors.append(remote.fileno())
        invocation.return_value_with_unix_fd_list(GLib.Variant("(h)", (index,)), descriptors)

    def stop_painting(self):
        if self.painter is not None:
            self.painter.kill()
            self.painter.wait()


def main():
    connection = Gio.bus_get_sync(Gio.BusType.SESSION)
    with open(sys.argv[1], "w", encoding="utf-8") as log:
        portal = Portal(connection, log, sys.argv[2:])
        connection.register_object(
            "/org/freedesktop/portal/desktop",
            Gio.DBusNodeInfo.new_for_xml(INTERFACE).interfaces[0], portal.call,
            lambda *arguments: GLib.Variant("u", 3 if arguments[4] != "version" else 4), None)
        Gio.bus_own_name_on_connection(connection, "org.freedesktop.portal.Desktop",
                                       Gio.BusNameOwnerFlags.NONE, None, None)
        print("ready", flush=True)
        loop = GLib.MainLoop()
        GLib.unix_signal_add(GLib.PRIORITY_DEFAULT, 15, loop.quit)
        try:
            loop.run()
        finally:
            portal.stop_painting()


main()
