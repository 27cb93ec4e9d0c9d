"""A printer for the Windows of the walk: its driver is Wine's for PostScript, and what it prints becomes a file."""
import pathlib
import tempfile

NAME = "Desk Printer"
DRIVER = "Desk PostScript"

DESCRIPTION = """*PPD-Adobe: "4.3"
*FormatVersion: "4.3"
*FileVersion: "1.0"
*LanguageVersion: English
*LanguageEncoding: ISOLatin1
*PCFileName: "DESK.PPD"
*Manufacturer: "Desk"
*Product: "(Desk Printer)"
*PSVersion: "(3010.000) 0"
*ModelName: "Desk Printer"
*NickName: "Desk Printer"
*LanguageLevel: "3"
*ColorDevice: True
*DefaultColorSpace: RGB
*FileSystem: False
*TTRasterizer: Type42
*LandscapeOrientation: Plus90
*DefaultResolution: 600dpi
*OpenUI *PageSize: PickOne
*OrderDependency: 10 AnySetup *PageSize
*DefaultPageSize: A4
*PageSize A4/A4: "<</PageSize[595 842]>>setpagedevice"
*CloseUI: *PageSize
*DefaultPageRegion: A4
*PageRegion A4/A4: "<</PageSize[595 842]>>setpagedevice"
*DefaultImageableArea: A4
*ImageableArea A4/A4: "18 18 577 824"
*DefaultPaperDimension: A4
*PaperDimension A4/A4: "595 842"
*DefaultFont: Helvetica
*Font Helvetica: Standard "(001.000)" Standard ROM
"""

CONTROL = r"HKEY_LOCAL_MACHINE\System\CurrentControlSet\Control\Print"
USER = r"HKEY_CURRENT_USER\Software\Microsoft\Windows NT\CurrentVersion"


def entries(port):
    driver = {"Configuration File": "wineps.drv", "Data File": "desk.ppd", "Datatype": "RAW", "Driver": "wineps.drv", "Version": 3}
    device = {"Attributes": 0, "Datatype": "RAW", "Default Priority": 0, "Name": NAME, "Port": port, "Print Processor": "winprint",
              "Printer Driver": DRIVER, "Priority": 0, "Status": 0}
    return {
        CONTROL + r"\Environments\Windows x64\Drivers\Version-3" + "\\" + DRIVER: driver,
        CONTROL + r"\Printers" + "\\" + NAME: device,
        USER + r"\Devices": {NAME: f"wineps.drv,{port}"},
        USER + r"\PrinterPorts": {NAME: f"wineps.drv,{port},15,45"},
        USER + r"\Windows": {"Device": f"{NAME},wineps.drv,{port}"},
    }


def quoted(value):
    if isinstance(value, int):
        return f"dword:{value:08x}"
    return '"' + value.replace("\\", "\\\\") + '"'


def install(wine, path):
    """Makes it the default printer of that Windows; it prints into the file."""
    drivers = pathlib.Path(wine.env["WINEPREFIX"]) / "drive_c/windows/system32/spool/drivers/x64/3"
    (drivers / "desk.ppd").write_text(DESCRIPTION)
    lines = ["Windows Registry Editor Version 5.00", ""]
    for key, values in entries(str(path)).items():
        lines += [f"[{key}]", *(f'"{name}"={quoted(value)}' for name, value in values.items()), ""]
    with tempfile.NamedTemporaryFile("w", suffix=".reg", newline="\r\n") as file:
        file.write("\n".join(lines))
        file.flush()
        wine.run("reg", "import", wine.name(file.name))
