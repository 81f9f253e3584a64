#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""A session manager that speaks XSMP, for one program.

Its first line on standard output is what the program needs as SESSION_MANAGER. Then it says what the program does:
"registered", "asks to interact", "saved" or "not saved", "closed". A line on standard input is what it tells the
program: "save" asks it to save since the session ends, "cancel" that it goes on after all, "die" to end.
"""
import ctypes
import os
import select
import sys

ice, sm = ctypes.CDLL("libICE.so.6"), ctypes.CDLL("libSM.so.6")
Pointer, Int, Text = ctypes.c_void_p, ctypes.c_int, ctypes.c_char_p
for library, name in ((ice, "IceComposeNetworkIdList"), (ice, "IceAcceptConnection"), (sm, "SmsGenerateClientID")):
    getattr(library, name).restype = Pointer


def function(*arguments, result=None):
    return ctypes.CFUNCTYPE(result, *arguments)


NewClient = function(Pointer, Pointer, ctypes.POINTER(ctypes.c_ulong), Pointer, Pointer, result=Int)
Allow = function(Text, result=Int)
# In the order of the structure that libSM wants; each is followed by data of its own.
PROCEDURES = (function(Pointer, Pointer, Pointer, result=Int),  # register
              function(Pointer, Pointer, Int),  # asks to interact
              function(Pointer, Pointer, Int),  # has interacted
              function(Pointer, Pointer, Int, Int, Int, Int, Int),  # asks for everything to be saved
              function(Pointer, Pointer),  # asks for a second round
              function(Pointer, Pointer, Int),  # saved
              function(Pointer, Pointer, Int, Pointer),  # closed
              function(Pointer, Pointer, Int, Pointer),  # sets properties
              function(Pointer, Pointer, Int, Pointer),  # deletes properties
              function(Pointer, Pointer))  # asks for properties
SAVE_BOTH, INTERACT_ANY = 2, 2
client = None


def say(text):
    print(text, flush=True)


def register(connection, _data, _previous):
    global client
    client = Pointer(connection)
    identity = sm.SmsGenerateClientID(client)
    sm.SmsRegisterClientReply(client, Pointer(identity))
    # As the protocol wants it of a newcomer.
    sm.SmsSaveYourself(client, 1, 0, 0, 0)
    say("registered")
    return 1


def saved(connection, _data, success):
    if not is_ending:
        sm.SmsSaveComplete(Pointer(connection))
    say("saved" if success else "not saved")


def interact(connection, _data, _kind):
    say("asks to interact")
    sm.SmsInteract(Pointer(connection))


def second_round(connection, _data):
    sm.SmsSaveYourselfPhase2(Pointer(connection))


def ignore(*_):
    pass


def closed(*_):
    say("closed")
    os._exit(0)


is_ending = False
procedures = [kind(handler) for kind, handler in zip(
    PROCEDURES, (register, interact, ignore, ignore, second_round, saved, closed, ignore, ignore, ignore))]


@NewClient
def accept(_connection, _data, mask, callbacks, _reason):
    mask[0] = (1 << len(procedures)) - 1
    table = ctypes.cast(callbacks, ctypes.POINTER(Pointer))
    for index, procedure in enumerate(procedures):
        table[2 * index], table[2 * index + 1] = ctypes.cast(procedure, Pointer), None
    return 1


@Allow
def allow(_host):
    return 1



def main():
    global is_ending
    error = ctypes.create_string_buffer(256)
    count, listeners = Int(), ctypes.POINTER(Pointer)()
    assert sm.SmsInitialize(b"velto", b"1", accept, None, allow, 256, error), error.value
    assert ice.IceListenForConnections(ctypes.byref(count), ctypes.byref(listeners), 256, error), error.value
    for index in range(count.value):
        ice.IceSetHostBasedAuthProc(Pointer(listeners[index]), allow)
    say(ctypes.string_at(ice.IceComposeNetworkIdList(count, listeners)).decode())

    doors = {ice.IceGetListenConnectionNumber(Pointer(listeners[index])): Pointer(listeners[index])
             for index in range(count.value)}
    connections = {}
    while True:
        for file in select.select([0, *doors, *connections], [], [])[0]:
            if file in doors:
                status = Int()
                connection = Pointer(ice.IceAcceptConnection(doors[file], ctypes.byref(status)))
                connections[ice.IceConnectionNumber(connection)] = connection
                while ice.IceConnectionStatus(connection) == 0:  # pending
                    ice.IceProcessMessages(connection, None, None)
            elif file in connections:
                ice.IceProcessMessages(connections[file], None, None)
            else:
                command = sys.stdin.readline().strip()
                if not command:
                    sys.exit()
                elif command == "save":
                    is_ending = True
                    sm.SmsSaveYourself(client, SAVE_BOTH, 1, INTERACT_ANY, 0)
                elif command == "cancel":
                    is_ending = False
                    sm.SmsShutdownCancelled(client)
                else:
                    sm.SmsDie(client)


if __name__ == "__main__":
    main()
