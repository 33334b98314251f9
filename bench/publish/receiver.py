"""A server that takes what is sent to it, and throws it away."""

import re
import socket
import threading

ANSWER = b"HTTP/1.1 200 OK\r\nContent-Type: application/json\r\nContent-Length: 2\r\nConnection: close\r\n\r\n{}"


class Receiver:
    def __init__(self):
        self.listener = socket.create_server(("127.0.0.1", 0))
        self.url = "http://127.0.0.1:%d/" % self.listener.getsockname()[1]
        self.buffer = bytearray(2**20)
        threading.Thread(target=self.serve, daemon=True).start()

    def serve(self):
        while True:
            connection, _ = self.listener.accept()
            with connection:
                self.take(connection)

    def take(self, connection):
        head = b""
        while b"\r\n\r\n" not in head:
            head += connection.recv(65536)
        head, body = head.split(b"\r\n\r\n", 1)
        left = int(re.search(rb"(?i)content-length: (\d+)", head)[1]) - len(body)
        while left > 0:
            received = connection.recv_into(self.buffer)
            if received == 0:
                return
            left -= received
        connection.sendall(ANSWER)
