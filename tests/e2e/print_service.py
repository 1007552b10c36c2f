"""A print service of a test's own: a real one on loopback, whose printers keep each job as a file."""

import os
import pathlib
import shutil
import socket
import subprocess

from whole_program import desktop

INSTALLED = pathlib.Path("/usr/lib/cups")

BACKEND = """#!/bin/sh
# Keeps the job's page: job number, user, title, copies, options and maybe a file.
[ $# -eq 0 ] && echo 'direct keep "Unknown" "Keeps each job"' && exit 0
if [ $# -ge 6 ]; then cat "$6"; else cat; fi >"{jobs}/part" &&
echo "copies=$4 $5" >"{jobs}/$1.options" && mv "{jobs}/part" "{jobs}/$1.pdf"
"""

PPD = """*PPD-Adobe: "4.3"
*FormatVersion: "4.3"
*FileVersion: "1.0"
*LanguageVersion: English
*LanguageEncoding: ISOLatin1
*PCFileName: "TEST.PPD"
*Manufacturer: "Test"
*Product: "(Test)"
*ModelName: "{name}"
*ShortNickName: "{name}"
*NickName: "{name}"
*PSVersion: "(3010.000) 550"
*LanguageLevel: "3"
*ColorDevice: {color}
*DefaultColorSpace: {space}
*FileSystem: False
*cupsVersion: 2.3
*cupsFilter2: "{language} {language} 0 -"
*DefaultResolution: 600dpi
*Resolution 600dpi: "<</HWResolution[600 600]>>setpagedevice"
*OpenUI *PageSize/Media Size: PickOne
*OrderDependency: 10 AnySetup *PageSize
*DefaultPageSize: Letter
*PageSize Letter/US Letter: "<</PageSize[612 792]>>setpagedevice"
*PageSize A4/A4: "<</PageSize[595 842]>>setpagedevice"
*CloseUI: *PageSize
*OpenUI *PageRegion: PickOne
*OrderDependency: 10 AnySetup *PageRegion
*DefaultPageRegion: Letter
*PageRegion Letter/US Letter: "<</PageSize[612 792]>>setpagedevice"
*PageRegion A4/A4: "<</PageSize[595 842]>>setpagedevice"
*CloseUI: *PageRegion
*DefaultImageableArea: Letter
*ImageableArea Letter/US Letter: "9 9 603 783"
*ImageableArea A4/A4: "9 9 586 833"
*DefaultPaperDimension: Letter
*PaperDimension Letter/US Letter: "612 792"
*PaperDimension A4/A4: "595 842"
*OpenUI *InputSlot/Media Source: PickOne
*OrderDependency: 10 AnySetup *InputSlot
*DefaultInputSlot: Upper
*InputSlot Upper/Upper Tray: "<</MediaPosition 0>>setpagedevice"
*InputSlot Lower/Lower Tray: "<</MediaPosition 1>>setpagedevice"
*CloseUI: *InputSlot
*OpenUI *MediaType/Media Type: PickOne
*OrderDependency: 10 AnySetup *MediaType
*DefaultMediaType: Plain
*MediaType Plain/Plain Paper: "<</MediaType(Plain)>>setpagedevice"
*MediaType Glossy/Glossy Paper: "<</MediaType(Glossy)>>setpagedevice"
*CloseUI: *MediaType
*OpenUI *cupsPrintQuality/Quality: PickOne
*OrderDependency: 10 AnySetup *cupsPrintQuality
*DefaultcupsPrintQuality: Normal
*cupsPrintQuality Normal/Normal: "<</PostRenderingEnhance false>>setpagedevice"
*cupsPrintQuality High/High: "<</PostRenderingEnhance true>>setpagedevice"
*CloseUI: *cupsPrintQuality
"""

PDF = "application/pdf"
POSTSCRIPT = "application/vnd.cups-postscript"

DAEMON = """Listen 127.0.0.1:{port}
Browsing Off
DefaultAuthType None
WebInterface No
LogLevel warn
MaxLogSize 0
<Location />
  Order allow,deny
  Allow all
</Location>
<Policy default>
  JobPrivateAccess all
  JobPrivateValues none
  <Limit All>
    Order allow,deny
    Allow all
  </Limit>
</Policy>
"""

FILES = """ServerRoot {folder}/conf
ServerBin {folder}/bin
DataDir /usr/share/cups
CacheDir {folder}/cache
StateDir {folder}/state
RequestRoot {folder}/spool
TempDir {folder}/temp
AccessLog {folder}/access.log
ErrorLog {folder}/error.log
PageLog {folder}/page.log
FatalErrors none
FileDevice Yes
SystemGroup root
"""


def free_port():
    with socket.socket() as listener:
        listener.bind(("127.0.0.1", 0))
        return listener.getsockname()[1]


class PrintService:
    """Started by the constructor; stop() ends it."""

    def __init__(self, folder):
        self.folder = pathlib.Path(folder)
        self.jobs = self.folder / "jobs"
        for name in ("conf", "bin", "cache", "state", "spool", "temp", "jobs"):
            (self.folder / name).mkdir(parents=True)
        os.chmod(self.folder.parent, 0o755)
        os.chmod(self.jobs, 0o777)
        # The service's filters run as a user of their own.
        os.chmod(self.folder / "temp", 0o1777)
        self.port = free_port()
        self.address = f"127.0.0.1:{self.port}"
        self.make_programs()
        (self.folder / "cupsd.conf").write_text(DAEMON.format(port=self.port))
        (self.folder / "cups-files.conf").write_text(FILES.format(folder=self.folder))
        self.process = subprocess.Popen(
            ["/usr/sbin/cupsd", "-f", "-c", self.folder / "cupsd.conf",
             "-s", self.folder / "cups-files.conf"],
            stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        desktop.wait_for("the print service", self.answers)

    def make_programs(self):
        for entry in INSTALLED.iterdir():
            if entry.name != "backend":
                (self.folder / "bin" / entry.name).symlink_to(entry)
        backend = self.folder / "bin" / "backend"
        backend.mkdir()
        (backend / "keep").write_text(BACKEND.format(jobs=self.jobs))
        (backend / "keep").chmod(0o755)

    def command(self, program, *arguments):
        return subprocess.run([program, "-h", self.address, *map(str, arguments)],
                              capture_output=True, timeout=20)

    def answers(self):
        if self.process.poll() is not None:
            raise RuntimeError((self.folder / "error.log").read_text())
        return b"is running" in self.command("lpstat", "-r").stdout

    def add(self, name, color=True, default=False, language=PDF):
        ppd = self.folder / f"{name}.ppd"
        ppd.write_text(PPD.format(name=name, color=color, space="RGB" if color else "Gray",
                                  language=language))
        made = self.command("lpadmin", "-p", name, "-E", "-v", "keep:/", "-P", ppd)
        if made.returncode != 0:
            raise RuntimeError(made.stderr.decode())
        if default:
            self.command("lpadmin", "-d", name)

    def remove(self, name):
        self.command("lpadmin", "-x", name)

    def reject(self, name):
        self.command("/usr/sbin/cupsreject", name)

    def accept(self, name):
        self.command("/usr/sbin/cupsaccept", name)

    def pages(self):
        """The files of the jobs so far, in their order."""
        return sorted(self.jobs.glob("*.pdf"), key=lambda path: int(path.stem))

    def options(self, job):
        """What the job asks of the printer, by its names."""
        told = (self.jobs / f"{job}.options").read_text().split()
        return dict(option.split("=", 1) for option in told if "=" in option)

    def stop(self):
        self.process.terminate()
        self.process.wait(timeout=10)
        shutil.rmtree(self.folder, ignore_errors=True)
