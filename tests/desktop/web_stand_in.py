"""A website for the tests, on this machine alone: what it answers for each path is told beforehand, and it remembers
what it was asked."""

import http.server
import threading


class Answer:
    """hold keeps the answer back until the website is closed."""

    def __init__(self, body=b"", status=200, headers=(), hold=False):
        self.body, self.status, self.headers, self.hold = body, status, dict(headers), hold


class Website:
    def __init__(self):
        self.answers = {}
        self.asked = []    # paths, in order
        self.headers = []  # of each question, names in lower case
        self.done = []     # paths whose answers are out
        self._closing = threading.Event()
        self._server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), self._handler())
        self._server.daemon_threads = True
        self.host = "127.0.0.1:%d" % self._server.server_address[1]
        self._thread = threading.Thread(target=self._server.serve_forever, kwargs={"poll_interval": 0.02})
        self._thread.start()

    def address(self, path="/"):
        return "http://" + self.host + path

    def close(self):
        self._closing.set()
        self._server.shutdown()
        self._thread.join()
        self._server.server_close()

    def _handler(site):
        class Handler(http.server.BaseHTTPRequestHandler):
            def do_GET(self):
                site.asked.append(self.path)
                site.headers.append({name.lower(): value for name, value in self.headers.items()})
                answer = site.answers.get(self.path, Answer(b"not here", 404))
                if answer.hold:
                    site._closing.wait()
                    return
                self.send_response(answer.status)
                for name, value in answer.headers.items():
                    self.send_header(name, value)
                self.end_headers()
                try:
                    self.wfile.write(answer.body)
                except OSError:
                    pass  # the other side has had enough
                site.done.append(self.path)

            def log_message(self, *_):
                pass

        return Handler
