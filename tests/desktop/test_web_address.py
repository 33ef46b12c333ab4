"""Web addresses on the real program: the dialog that adds them, by keys, and the small pictures of their sites, from
a website on this machine."""

import os
import unittest

from harness import until
import test_con_properties as pictures
import test_menus as menus
import workspace_files as files
from web_stand_in import Answer, Website

GREEN = (0, 200, 0)
NETWORK_LIBRARY = "libQt6Network"


class WebAddress(menus.MenuCase):
    def setUp(self):
        super().setUp()
        self.sites = []
        self.site = self.website()
        picture = os.path.join(self.desktop.home, "picture.png")
        pictures.png(picture, GREEN)
        with open(picture, "rb") as file:
            self.picture = file.read()

    def website(self):
        site = Website()
        self.addCleanup(site.close)
        return site

    def open_empty(self, links="", **settings):
        extra = files.lines("[ShowTips]", 0) + settings.pop("extra", "")
        files.put(self.folder, files.settings(extra=extra, links=links, **settings))
        self.open()
        self.desktop.click(*self.at(3000, 3000))

    def open_dialog(self):
        self.desktop.key("ctrl+w")
        self.dialog = self.await_dialog("Add URL")
        until(lambda: self.desktop.has_keyboard(self.dialog), "the dialog has the keyboard")

    def kept(self, name="Quillmere.REC"):
        """Caption -> {tag: value} of the shortcuts on the workspace, as saved."""
        rows, found = self.saved(name).split("\r\n"), {}
        for begin in (place for place, row in enumerate(rows) if row == "[Link]"):
            fields = rows[begin + 1:rows.index("[End Link]", begin)]
            link = dict(zip(fields[::2], fields[1::2]))
            found[link["[LinkLabel]"]] = link
        return found

    def await_kept(self, caption, name="Quillmere.REC"):
        until(lambda: caption in self.kept(name), "%s is in %s: %s" % (caption, name, self.saved(name)))
        return self.kept(name)[caption]

    def await_icon(self, caption):
        until(lambda: self.await_kept(caption)["[Icon]"], "%s has an icon: %s" % (caption, self.saved("Quillmere.REC")))
        return self.kept()[caption]["[Icon]"]

    def cached(self):
        folder = os.path.join(self.folder, "iconcache")
        return os.listdir(folder) if os.path.isdir(folder) else []

    def uses_network_library(self):
        with open("/proc/%d/maps" % self.app.process.pid, encoding="utf-8", errors="replace") as maps:
            return NETWORK_LIBRARY in maps.read()

    # The dialog

    def test_an_address_is_typed_behind_what_stands_there_and_started_with_its_name(self):
        self.open_empty()
        self.open_dialog()
        self.desktop.type("www.a.example/x")
        self.desktop.key("Return")
        link = self.await_kept("a.example/x")
        self.assertEqual((link["[LinkPath]"], link["[LinkType]"], link["[Icon]"]), ("http://www.a.example/x", "1", ""))
        self.await_windows(1, "the dialog is gone")
        until(lambda: self.desktop.has_keyboard(self.window), "the workspace has the keyboard again")

    def test_entering_the_label_selects_it_by_key_and_by_mouse(self):
        self.open_empty()
        self.open_dialog()
        self.desktop.type("a.example")
        self.desktop.key("Tab")
        self.desktop.type("By key")
        self.desktop.key("Return")
        self.await_kept("By key")
        self.await_windows(1, "the dialog is gone")
        self.open_dialog()
        self.desktop.type("b.example")
        left, top, width, _ = self.desktop.geometry(self.dialog)
        self.desktop.click(left + width - 60, top + 55)
        self.desktop.type("By mouse")
        self.desktop.key("Return")
        self.assertEqual(self.await_kept("By mouse")["[LinkPath]"], "http://b.example")

    def test_kept_open_it_takes_one_after_the_other_until_escape(self):
        self.open_empty()
        self.open_dialog()
        for host, keys in (("one.example", ["Tab", "Tab", "Tab", "space"]), ("two.example", [])):
            self.desktop.type(host)
            self.desktop.key(*keys, "Return")
            self.await_kept(host)
            self.assertIn(self.dialog, self.app.all_windows())
        self.desktop.key("Escape")
        self.await_windows(1, "the dialog is gone")
        one, two = self.kept()["one.example"], self.kept()["two.example"]
        self.assertEqual([float(two[tag]) - float(one[tag]) for tag in ("[LinkX]", "[LinkY]")], [300, 300])

    def test_with_nothing_typed_it_only_closes(self):
        self.open_empty()
        for key in ("Return", "alt+c"):
            self.open_dialog()
            self.desktop.key(key)
            self.await_windows(1, "the dialog is gone")
        self.desktop.key("F8")
        until(lambda: self.saved("Quillmere.ini"), "it is saved")
        self.assertEqual(self.kept("Quillmere.ini"), {})

    # The pictures of the sites

    def add_with_picture(self, address, label):
        self.open_dialog()
        self.desktop.key("ctrl+a")
        self.desktop.type(address)
        self.desktop.key("Tab")
        self.desktop.type(label)
        self.desktop.key("Tab", "space", "Return")
        self.await_kept(label)
        self.await_windows(1, "the dialog is gone")

    def test_the_picture_comes_into_the_cache_and_shows_beside_the_name(self):
        self.site.answers["/favicon.ico"] = Answer(self.picture, headers={"Set-Cookie": "who=you"})
        self.open_empty()
        self.assertFalse(self.uses_network_library(), "a start needs no network")
        self.add_with_picture(self.site.address("/deep/page?x=1"), "Site")
        icon = self.await_icon("Site")
        self.assertTrue(self.uses_network_library())
        self.assertEqual(set(self.site.asked), {"/favicon.ico"})
        self.assertEqual(os.path.dirname(icon), os.path.join(self.folder, "iconcache"))
        with open(icon, "rb") as file:
            self.assertEqual(file.read(), self.picture)
        link = self.kept()["Site"]
        middle = self.at(float(link["[LinkX]"]) - 10 - 120, float(link["[LinkY]"]) + 120)
        until(lambda: tuple(self.desktop.pixel(*middle)) == GREEN, "it is seen")
        self.add_with_picture(self.site.address("/"), "Again")
        self.await_icon("Again")
        self.assertNotIn("cookie", self.site.headers[-1], "what a site wants to know again it is not told")

    def test_redirects_are_followed_to_the_web_alone_and_failures_leave_nothing(self):
        wrong = {
            "Missing": Answer(b"nothing", 404),
            "Page": Answer(b"<html><body>nothing here</body></html>", headers={"Content-Type": "image/x-icon"}),
            "Empty": Answer(b""),
            "Large": Answer(self.picture + b"x" * 1024 * 1024),
            "Circle": Answer(status=302, headers={"Location": "/favicon.ico"}),
            "File": Answer(status=302, headers={"Location": "file:///etc/passwd"}),
            "Nowhere": Answer(status=302, headers={"Location": "http://127.0.0.1:1/favicon.ico"}),
        }
        self.open_empty(w=12000)
        for label, answer in wrong.items():
            site = self.website()
            site.answers["/favicon.ico"] = answer
            self.add_with_picture(site.address(), label)
            until(lambda: site.done, "%s is answered" % label)
        self.site.answers["/favicon.ico"] = Answer(status=301, headers={"Location": "/there.png"})
        self.site.answers["/there.png"] = Answer(self.picture)
        self.add_with_picture(self.site.address(), "Moved")
        self.await_icon("Moved")
        self.await_windows(1, "nothing is told")
        self.desktop.key("F8")
        icons = {label: link["[Icon]"] for label, link in self.kept("Quillmere.ini").items() if link["[Icon]"]}
        self.assertEqual(list(icons), ["Moved"])
        self.assertEqual(len(self.cached()), 1)

    def test_the_command_fetches_for_what_is_selected_and_the_file_goes_with_its_shortcut(self):
        self.site.answers["/favicon.ico"] = Answer(self.picture)
        self.open_empty(links=files.link("News", self.site.address("/news"), type=1, x=1000, y=1500),
                        extra=files.lines("[ConfirmDelete]", 0, "[Dbl-Click]", 1))
        self.desktop.click(*self.at(1150, 1620))
        self.desktop.key("ctrl+shift+i")
        self.await_icon("News")
        self.desktop.key("F8")
        until(lambda: self.kept("Quillmere.ini").get("News", {}).get("[Icon]"), "it is saved")
        self.assertEqual(len(self.cached()), 1)
        self.desktop.key("shift+Delete")
        until(lambda: "News" not in self.kept(), "it is gone")
        self.assertEqual(len(self.cached()), 1, "the last save still names it")
        self.desktop.key("F8")
        until(lambda: not self.cached(), "its file is gone")

    def test_a_site_that_does_not_answer_holds_up_nobody_not_even_the_end(self):
        self.site.answers["/favicon.ico"] = Answer(hold=True)
        self.open_empty()
        self.add_with_picture(self.site.address(), "Silent")
        until(lambda: self.site.asked, "it is asked")
        self.open_dialog()
        self.desktop.key("Escape")
        self.await_windows(1, "the dialog is gone")
        self.assertEqual(self.app.terminate(), 0)
        self.assertEqual(self.app.stderr, "")
        self.assertEqual(self.kept("Quillmere.ini")["Silent"]["[Icon]"], "")


if __name__ == "__main__":
    unittest.main()
