<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>ActWatch</name>
    <message>
        <source>Enabled: the motor is powered</source>
        <translation>Freigegeben: Der Motor ist bestromt</translation>
    </message>
    <message>
        <source>Not enabled: the drive has a fault: %1</source>
        <translation>Nicht freigegeben: Der Antrieb meldet eine Störung: %1</translation>
    </message>
    <message>
        <source>The enable was sent, but the motor is not powered</source>
        <translation>Die Freigabe wurde gesendet, aber der Motor ist nicht bestromt</translation>
    </message>
    <message>
        <source>The enable was sent, but the motor is not powered. Look at: %1</source>
        <translation>Die Freigabe wurde gesendet, aber der Motor ist nicht bestromt. Prüfen Sie: %1</translation>
    </message>
    <message>
        <source>Faults cleared</source>
        <translation>Störungen quittiert</translation>
    </message>
    <message>
        <source>Not cleared: %1. The cause is still there</source>
        <translation>Nicht quittiert: %1. Die Ursache besteht noch</translation>
    </message>
    <message>
        <source>Capture armed: it waits for its trigger</source>
        <translation>Aufzeichnung scharf: Sie wartet auf ihren Trigger</translation>
    </message>
    <message>
        <source>Capture finished</source>
        <translation>Aufzeichnung beendet</translation>
    </message>
    <message>
        <source>Capture called off</source>
        <translation>Aufzeichnung abgebrochen</translation>
    </message>
    <message>
        <source>The capture has failed: the drive&apos;s record could not be read</source>
        <translation>Die Aufzeichnung ist misslungen: Der Speicher des Antriebs konnte nicht gelesen werden</translation>
    </message>
    <message>
        <source>The drive has stopped by itself: %1</source>
        <translation>Der Antrieb hat von selbst angehalten: %1</translation>
    </message>
</context>
<context>
    <name>Analysis</name>
    <message>
        <source>There is not enough motion in this record: move at least some hundred counts.</source>
        <translation>Diese Aufzeichnung enthält zu wenig Bewegung: Verfahren Sie um mindestens einige hundert Inkremente.</translation>
    </message>
    <message>
        <source>The record holds motion in one direction only: move forth and back.</source>
        <translation>Die Aufzeichnung enthält Bewegung in nur einer Richtung: Verfahren Sie hin und zurück.</translation>
    </message>
    <message>
        <source>The current stood in its limit (MMC) for much of the move: move more gently.</source>
        <translation>Der Strom stand für einen großen Teil der Bewegung an seiner Grenze (MMC): Verfahren Sie sanfter.</translation>
    </message>
    <message>
        <source>Torque achieved and position achieved have to be captured together.</source>
        <translation>Istdrehmoment und Istposition müssen zusammen aufgezeichnet werden.</translation>
    </message>
    <message>
        <source>There is not enough motion in this record: move further, or capture at a higher sample rate.</source>
        <translation>Diese Aufzeichnung enthält zu wenig Bewegung: Verfahren Sie weiter oder zeichnen Sie mit höherer Abtastrate auf.</translation>
    </message>
    <message>
        <source>The axis does not accelerate in the direction of its torque: check the feedback direction, and whether anything else moves it.</source>
        <translation>Die Achse beschleunigt nicht in Richtung ihres Drehmoments: Prüfen Sie die Zählrichtung des Gebers und ob etwas anderes sie bewegt.</translation>
    </message>
    <message>
        <source>Parts of the move contradict each other: the axis is springy or has backlash, or the record is too noisy. One inertia does not describe it.</source>
        <translation>Teile der Bewegung widersprechen sich: Die Achse ist federnd oder hat Spiel, oder die Aufzeichnung ist zu verrauscht. Ein einzelnes Trägheitsmoment beschreibt sie nicht.</translation>
    </message>
    <message>
        <source>The speed that follows from the recorded torque is not the speed that was measured: one inertia with friction does not describe this axis.</source>
        <translation>Die Geschwindigkeit, die aus dem aufgezeichneten Drehmoment folgt, ist nicht die gemessene: Ein einzelnes Trägheitsmoment mit Reibung beschreibt diese Achse nicht.</translation>
    </message>
    <message>
        <source>Rise time, 10 to 90 %</source>
        <translation>Anstiegszeit, 10 bis 90 %</translation>
    </message>
    <message>
        <source>Time to 90 %</source>
        <translation>Zeit bis 90 %</translation>
    </message>
    <message>
        <source>Overshoot</source>
        <translation>Überschwingen</translation>
    </message>
    <message>
        <source>Settling time, within 2 %</source>
        <translation>Einschwingzeit, auf 2 %</translation>
    </message>
    <message>
        <source>Peak tracking error</source>
        <translation>Größter Schleppfehler</translation>
    </message>
    <message>
        <source>RMS tracking error</source>
        <translation>Effektivwert des Schleppfehlers</translation>
    </message>
    <message>
        <source>Limited by MMC for</source>
        <translation>Durch MMC begrenzt für</translation>
    </message>
    <message>
        <source>Ringing</source>
        <translation>Nachschwingen</translation>
    </message>
    <message>
        <source>Resolution of the ringing</source>
        <translation>Auflösung des Nachschwingens</translation>
    </message>
    <message>
        <source>Acceleration per torque</source>
        <translation>Beschleunigung je Drehmoment</translation>
    </message>
    <message>
        <source>Slow motion forward takes</source>
        <translation>Langsame Fahrt vorwärts braucht</translation>
    </message>
    <message>
        <source>Slow motion backward takes</source>
        <translation>Langsame Fahrt rückwärts braucht</translation>
    </message>
    <message>
        <source>Dry friction</source>
        <translation>Trockene Reibung</translation>
    </message>
    <message>
        <source>Hanging load</source>
        <translation>Hängende Last</translation>
    </message>
    <message>
        <source>Viscous friction</source>
        <translation>Viskose Reibung</translation>
    </message>
    <message>
        <source>Acceleration feed-forward that follows [AFF]</source>
        <translation>Daraus folgende Beschleunigungsvorsteuerung [AFF]</translation>
    </message>
    <message>
        <source>Velocity feed-forward that follows [VFF]</source>
        <translation>Daraus folgende Geschwindigkeitsvorsteuerung [VFF]</translation>
    </message>
    <message>
        <source>Not defined: a setpoint and what was achieved have to be captured together.</source>
        <translation>Nicht bestimmbar: Ein Sollwert und sein Istwert müssen zusammen aufgezeichnet werden.</translation>
    </message>
    <message>
        <source>Not defined: the record holds values that are no numbers.</source>
        <translation>Nicht bestimmbar: Die Aufzeichnung enthält Werte, die keine Zahlen sind.</translation>
    </message>
    <message>
        <source>Not defined: 90 % of the step is not reached within the record.</source>
        <translation>Nicht bestimmbar: 90 % des Sprungs werden innerhalb der Aufzeichnung nicht erreicht.</translation>
    </message>
    <message>
        <source>Not defined: the axis was on its way already when the setpoint changed.</source>
        <translation>Nicht bestimmbar: Die Achse war schon unterwegs, als sich der Sollwert änderte.</translation>
    </message>
    <message>
        <source>Not settled: it is more than 2 % away at the end of the record.</source>
        <translation>Nicht eingeschwungen: Am Ende der Aufzeichnung ist sie um mehr als 2 % entfernt.</translation>
    </message>
    <message>
        <source>Not settled: the record ends too soon after 2 % was reached.</source>
        <translation>Nicht eingeschwungen: Die Aufzeichnung endet zu bald, nachdem 2 % erreicht wurden.</translation>
    </message>
    <message>
        <source>Not defined: the final value is not reached within the record.</source>
        <translation>Nicht bestimmbar: Der Endwert wird innerhalb der Aufzeichnung nicht erreicht.</translation>
    </message>
    <message>
        <source>Not defined: it is still moving away when the record ends.</source>
        <translation>Nicht bestimmbar: Am Ende der Aufzeichnung entfernt sie sich noch.</translation>
    </message>
    <message>
        <source>Not defined: the torque setpoint was not captured.</source>
        <translation>Nicht bestimmbar: Das Solldrehmoment wurde nicht aufgezeichnet.</translation>
    </message>
    <message>
        <source>Not defined: the current limit (MMC) is not known.</source>
        <translation>Nicht bestimmbar: Die Stromgrenze (MMC) ist nicht bekannt.</translation>
    </message>
    <message>
        <source>Not defined: the tail does not ring.</source>
        <translation>Nicht bestimmbar: Es schwingt nicht nach.</translation>
    </message>
    <message>
        <source>Not defined: the setpoint does not change in this record.</source>
        <translation>Nicht bestimmbar: Der Sollwert ändert sich in dieser Aufzeichnung nicht.</translation>
    </message>
    <message>
        <source>Not defined: the setpoint ends where it began.</source>
        <translation>Nicht bestimmbar: Der Sollwert endet dort, wo er begann.</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>%1 ± %2</source>
        <translation>%1 ± %2</translation>
    </message>
    <message>
        <source>ms</source>
        <translation>ms</translation>
    </message>
    <message>
        <source>Hz</source>
        <translation>Hz</translation>
    </message>
    <message>
        <source>Axis sheet</source>
        <translation>Achsblatt</translation>
    </message>
    <message>
        <source>rev/s² per A</source>
        <translation>U/s² je A</translation>
    </message>
    <message>
        <source>counts/s² per A</source>
        <translation>Ink/s² je A</translation>
    </message>
    <message>
        <source>A</source>
        <translation>A</translation>
    </message>
    <message>
        <source>A per rev/s</source>
        <translation>A je U/s</translation>
    </message>
    <message>
        <source>A per count/s</source>
        <translation>A je Ink/s</translation>
    </message>
    <message>
        <source>The position achieved was not recorded.</source>
        <translation>Die Istposition wurde nicht aufgezeichnet.</translation>
    </message>
    <message>
        <source>The axis did not move when the stop was pressed.</source>
        <translation>Die Achse stand, als der Not-Halt gedrückt wurde.</translation>
    </message>
    <message>
        <source>It was still moving at the end of the record.</source>
        <translation>Am Ende der Aufzeichnung bewegte sie sich noch.</translation>
    </message>
    <message>
        <source>counts</source>
        <translation>Ink</translation>
    </message>
    <message>
        <source>Step figures</source>
        <translation>Sprungantwort</translation>
    </message>
</context>
<context>
    <name>ApplyBox</name>
    <message>
        <source>Apply settings</source>
        <translation>Einstellungen anwenden</translation>
    </message>
    <message>
        <source>%1 settings of the drive will change:</source>
        <translation>%1 Einstellungen des Antriebs werden sich ändern:</translation>
    </message>
    <message>
        <source>No setting differs from the drive&apos;s.</source>
        <translation>Keine Einstellung weicht von der des Antriebs ab.</translation>
    </message>
    <message>
        <source>One setting of the drive will change:</source>
        <translation>Eine Einstellung des Antriebs wird sich ändern:</translation>
    </message>
    <message>
        <source>Back, change nothing</source>
        <translation>Zurück, nichts ändern</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Änderungen</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Einstellung</translation>
    </message>
    <message>
        <source>The drive has</source>
        <translation>Der Antrieb hat</translation>
    </message>
    <message>
        <source>It will get</source>
        <translation>Er erhält</translation>
    </message>
</context>
<context>
    <name>ApplyDesk</name>
    <message>
        <source>1 change</source>
        <translation>1 Änderung</translation>
    </message>
    <message>
        <source>%1 changes</source>
        <translation>%1 Änderungen</translation>
    </message>
    <message>
        <source>Apply settings (parameters changed)</source>
        <translation>Anwenden (Parameter geändert)</translation>
    </message>
    <message>
        <source>Apply settings [Alt+A]</source>
        <translation>Einstellungen anwenden [Alt+A]</translation>
    </message>
    <message>
        <source>Nothing applied: the settings of this drive have not been read yet</source>
        <translation>Nichts angewendet: Die Einstellungen dieses Antriebs sind noch nicht gelesen</translation>
    </message>
    <message>
        <source>Nothing saved: the settings of this drive have not been read yet</source>
        <translation>Nichts gespeichert: Die Einstellungen dieses Antriebs sind noch nicht gelesen</translation>
    </message>
    <message>
        <source>Loaded %1. Nothing of it is in the drive before it is applied</source>
        <translation>%1 geladen. Nichts davon ist im Antrieb, bevor es angewendet wird</translation>
    </message>
    <message>
        <source>Some paramets have been changed since last Apply. Changed settings won&apos;t take effect before Apply.</source>
        <translation>Seit dem letzten Anwenden wurden Parameter geändert. Geänderte Einstellungen wirken erst nach dem Anwenden.</translation>
    </message>
    <message>
        <source>Velbrin</source>
        <translation>Velbrin</translation>
    </message>
    <message>
        <source>Do you wish to apply changes to drive now?</source>
        <translation>Möchten Sie die Änderungen jetzt auf den Antrieb anwenden?</translation>
    </message>
    <message>
        <source>Do you wish to apply changes to drive now? You may also choose Abort to go back.</source>
        <translation>Möchten Sie die Änderungen jetzt auf den Antrieb anwenden? Mit „Abbrechen“ können Sie auch zurückgehen.</translation>
    </message>
    <message>
        <source>Continue without applying</source>
        <translation>Ohne Anwenden fortfahren</translation>
    </message>
    <message>
        <source>Apply settings</source>
        <translation>Einstellungen anwenden</translation>
    </message>
    <message>
        <source>Some paramets have been changed since last Save to drive. Last changes will be lost on drive power-off if not saved.</source>
        <translation>Seit dem letzten Speichern im Antrieb wurden Parameter geändert. Ungespeichert gehen die letzten Änderungen beim Ausschalten des Antriebs verloren.</translation>
    </message>
    <message>
        <source>Do you wish to save active settings to drive now? You may also choose Abort to go back.</source>
        <translation>Möchten Sie die wirksamen Einstellungen jetzt im Antrieb speichern? Mit „Abbrechen“ können Sie auch zurückgehen.</translation>
    </message>
    <message>
        <source>Discard changes</source>
        <translation>Änderungen verwerfen</translation>
    </message>
    <message>
        <source>Save to drive now</source>
        <translation>Jetzt im Antrieb speichern</translation>
    </message>
    <message>
        <source>Save settings to file</source>
        <translation>Einstellungen in Datei speichern</translation>
    </message>
    <message>
        <source>Drive settings (*.drc)</source>
        <translation>Antriebseinstellungen (*.drc)</translation>
    </message>
    <message>
        <source>This file is saved without a drive: what nobody has typed into it are start values of this program, not the settings of a drive.</source>
        <translation>Diese Datei wird ohne Antrieb gespeichert: Was niemand eingegeben hat, sind Startwerte dieses Programms und nicht die Einstellungen eines Antriebs.</translation>
    </message>
    <message>
        <source>Open settings file</source>
        <translation>Einstellungsdatei öffnen</translation>
    </message>
</context>
<context>
    <name>CaptureAid</name>
    <message>
        <source>Call off</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Ends the waiting for a trigger. What the drive does goes on.</source>
        <translation>Beendet das Warten auf einen Trigger. Was der Antrieb tut, geht weiter.</translation>
    </message>
</context>
<context>
    <name>CaptureRecord</name>
    <message>
        <source>The capture cannot be opened: it is not a plain file.</source>
        <translation>Die Aufzeichnung kann nicht geöffnet werden: Sie ist keine gewöhnliche Datei.</translation>
    </message>
    <message>
        <source>The capture cannot be opened: %1.</source>
        <translation>Die Aufzeichnung kann nicht geöffnet werden: %1.</translation>
    </message>
    <message>
        <source>The file is far too large to be a capture.</source>
        <translation>Die Datei ist viel zu groß für eine Aufzeichnung.</translation>
    </message>
    <message>
        <source>The capture cannot be read: %1.</source>
        <translation>Die Aufzeichnung kann nicht gelesen werden: %1.</translation>
    </message>
    <message>
        <source>This page holds no capture: it was cut off, or saved by an older version of Velbrin.</source>
        <translation>Diese Seite enthält keine Aufzeichnung: Sie ist abgeschnitten oder wurde von einer älteren Version von Velbrin gespeichert.</translation>
    </message>
    <message>
        <source>The capture is damaged: its member &quot;%1&quot; is missing or is not what it should be.</source>
        <translation>Die Aufzeichnung ist beschädigt: Ihr Element „%1“ fehlt oder ist nicht, was es sein sollte.</translation>
    </message>
    <message>
        <source>The capture is damaged: its text breaks off or is no JSON.</source>
        <translation>Die Aufzeichnung ist beschädigt: Ihr Text bricht ab oder ist kein JSON.</translation>
    </message>
    <message>
        <source>This is not a capture of Velbrin.</source>
        <translation>Dies ist keine Aufzeichnung von Velbrin.</translation>
    </message>
    <message>
        <source>The capture was made by a newer version of Velbrin. Install that version to open it.</source>
        <translation>Die Aufzeichnung stammt von einer neueren Version von Velbrin. Installieren Sie diese, um sie zu öffnen.</translation>
    </message>
    <message>
        <source>The capture is damaged: its version is not known.</source>
        <translation>Die Aufzeichnung ist beschädigt: Ihre Version ist nicht bekannt.</translation>
    </message>
    <message>
        <source>This is not a capture of Velbrin: its first line does not name the columns.</source>
        <translation>Dies ist keine Aufzeichnung von Velbrin: Die erste Zeile benennt die Spalten nicht.</translation>
    </message>
    <message>
        <source>This is not a capture of Velbrin: the caption of column %1 is no channel of the recorder.</source>
        <translation>Dies ist keine Aufzeichnung von Velbrin: Die Überschrift von Spalte %1 ist kein Kanal des Aufzeichners.</translation>
    </message>
    <message>
        <source>The capture is damaged: column %1 repeats an earlier one.</source>
        <translation>Die Aufzeichnung ist beschädigt: Spalte %1 wiederholt eine frühere.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Die Datei ist leer.</translation>
    </message>
    <message>
        <source>The capture is damaged: line %1 does not hold one number a column.</source>
        <translation>Die Aufzeichnung ist beschädigt: Zeile %1 enthält nicht eine Zahl je Spalte.</translation>
    </message>
    <message>
        <source>The capture has fewer than two samples.</source>
        <translation>Die Aufzeichnung hat weniger als zwei Abtastwerte.</translation>
    </message>
    <message>
        <source>The capture is damaged: its samples are not evenly spaced in time.</source>
        <translation>Die Aufzeichnung ist beschädigt: Ihre Abtastwerte sind zeitlich nicht gleichmäßig verteilt.</translation>
    </message>
</context>
<context>
    <name>CaptureSaving</name>
    <message>
        <source>Columns for spreadsheets, with commas and units (*.csv)</source>
        <translation>Spalten für Tabellenprogramme, mit Kommas und Einheiten (*.csv)</translation>
    </message>
    <message>
        <source>Portable Network Graphics (*.png);;Raw data as text file (*.csv)</source>
        <translation>Portable Network Graphics (*.png);;Rohdaten als Textdatei (*.csv)</translation>
    </message>
    <message>
        <source>Page that can be opened again, for any browser (*.html)</source>
        <translation>Seite für jeden Browser, die sich wieder öffnen lässt (*.html)</translation>
    </message>
</context>
<context>
    <name>ConnectPage</name>
    <message>
        <source>Connect: find the drive and take control</source>
        <translation>Verbinden: den Antrieb finden und übernehmen</translation>
    </message>
    <message>
        <source>Connection to drive</source>
        <translation>Verbindung zum Antrieb</translation>
    </message>
    <message>
        <source>Communication interface device</source>
        <translation>Schnittstellengerät</translation>
    </message>
    <message>
        <source>&lt;p&gt;Serial port of the bus adapter. A port that is not listed can be typed.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Serielle Schnittstelle des Busadapters. Eine, die nicht in der Liste steht, kann eingetippt werden.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Zetabus2 USB adapter</source>
        <translation>Zetabus2-USB-Adapter</translation>
    </message>
    <message>
        <source>&lt;p&gt;Lists the serial ports again, for an adapter that has been plugged in meanwhile.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Listet die seriellen Schnittstellen neu auf, für einen Adapter, der inzwischen eingesteckt wurde.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Refresh list</source>
        <translation>Liste aktualisieren</translation>
    </message>
    <message>
        <source>&lt;p&gt;Searches the bus for drives and lets you choose one. Shortcut Alt+O&lt;/p&gt;</source>
        <translation>&lt;p&gt;Sucht Antriebe am Bus und lässt Sie einen wählen. Tastenkürzel Alt+O&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Connect to drive</source>
        <translation>Mit Antrieb verbinden</translation>
    </message>
    <message>
        <source>&lt;p&gt;Ends the connection; the drive keeps doing what it does. Shortcut Alt+D&lt;/p&gt;</source>
        <translation>&lt;p&gt;Beendet die Verbindung; der Antrieb macht weiter, was er gerade tut. Tastenkürzel Alt+D&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Disconnect from drive</source>
        <translation>Verbindung trennen</translation>
    </message>
    <message>
        <source>Connected device info</source>
        <translation>Angaben zum verbundenen Gerät</translation>
    </message>
    <message>
        <source>&lt;p&gt;Type of the connected drive, which decides what it can do.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Typ des verbundenen Antriebs; er entscheidet, was dieser kann.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modell</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>k. A.</translation>
    </message>
    <message>
        <source>HW type ID</source>
        <translation>Hardware-Typkennung</translation>
    </message>
    <message>
        <source>&lt;p&gt;Serial number, as on the drive&apos;s type plate.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Seriennummer, wie auf dem Typenschild des Antriebs.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Seriennummer</translation>
    </message>
    <message>
        <source>&lt;p&gt;Version of the drive&apos;s motion firmware.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Version der Firmware für die Bewegung.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>TarnwellCore firmware version</source>
        <translation>TarnwellCore-Firmware</translation>
    </message>
    <message>
        <source>&lt;p&gt;Version of the firmware in the I/O processor.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Version der Firmware im E/A-Prozessor.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>I/O side firmware version</source>
        <translation>Firmware der E/A-Seite</translation>
    </message>
    <message>
        <source>&lt;p&gt;Exact build of the firmware, in hexadecimal; quote it when asking for support.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Genauer Stand der Firmware, hexadezimal; nennen Sie ihn, wenn Sie den Support fragen.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Firmware revision ID</source>
        <translation>Firmware-Revision</translation>
    </message>
    <message>
        <source>Drive controls</source>
        <translation>Antrieb bedienen</translation>
    </message>
    <message>
        <source>&lt;p&gt;Gives the software enable. The motor is powered as soon as the enable input is on too.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Gibt die Software-Freigabe. Der Motor wird bestromt, sobald auch der Freigabeeingang gesetzt ist.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Soft enable drive</source>
        <translation>Antrieb per Software freigeben</translation>
    </message>
    <message>
        <source>&lt;p&gt;Enables the drive without waiting for the enable input. The motor is powered at once: make sure that nobody is in the machine.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Gibt den Antrieb frei, ohne auf den Freigabeeingang zu warten. Der Motor wird sofort bestromt: Stellen Sie sicher, dass sich niemand in der Maschine befindet.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Force enable drive</source>
        <translation>Freigabe erzwingen</translation>
    </message>
    <message>
        <source>&lt;p&gt;Takes the power off the motor. Esc does this from anywhere in the program.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Nimmt dem Motor den Strom. Esc tut dies von überall im Programm aus.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Disable drive [Esc]</source>
        <translation>Antrieb sperren [Esc]</translation>
    </message>
    <message>
        <source>&lt;p&gt;Clears the faults that are shown on the Testing page. Remove their cause first.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Quittiert die Störungen, die auf der Seite „Testen“ stehen. Beheben Sie zuerst deren Ursache.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&amp;Clear drive faults  [Alt+R]</source>
        <translation>Störungen &amp;quittieren  [Alt+R]</translation>
    </message>
    <message>
        <source>&lt;p&gt;Keeps the applied settings over a power-off.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Erhält die angewendeten Einstellungen über das Ausschalten hinweg.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Save settings on drive non-volatile memory</source>
        <translation>Einstellungen dauerhaft im Antrieb speichern</translation>
    </message>
    <message>
        <source>&lt;p&gt;Restarts the drive with the settings of its non-volatile memory. Needed after Permanent stop.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Startet den Antrieb mit den Einstellungen aus seinem nichtflüchtigen Speicher neu. Nötig nach „Dauerhalt“.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Restart drive</source>
        <translation>Antrieb neu starten</translation>
    </message>
    <message>
        <source>&lt;p&gt;Restarts the drive into firmware-upgrade mode, so that new firmware can be installed.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Startet den Antrieb im Firmware-Update-Modus neu, damit neue Firmware installiert werden kann.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Install firmware</source>
        <translation>Firmware installieren</translation>
    </message>
    <message>
        <source>Settings file</source>
        <translation>Einstellungsdatei</translation>
    </message>
    <message>
        <source>&lt;p&gt;Writes the settings of all pages to a drive settings file. Shortcut Ctrl+S&lt;/p&gt;</source>
        <translation>&lt;p&gt;Schreibt die Einstellungen aller Seiten in eine Einstellungsdatei. Tastenkürzel Strg+S&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Save settings to file</source>
        <translation>In Datei speichern</translation>
    </message>
    <message>
        <source>&lt;p&gt;Fills the pages from a drive settings file. Nothing reaches the drive before Apply. Shortcut Ctrl+O&lt;/p&gt;</source>
        <translation>&lt;p&gt;Füllt die Seiten aus einer Einstellungsdatei. Vor dem Anwenden erreicht nichts den Antrieb. Tastenkürzel Strg+O&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Load settings from file</source>
        <translation>Aus Datei laden</translation>
    </message>
    <message>
        <source>Searching devices...</source>
        <translation>Suche Geräte...</translation>
    </message>
    <message>
        <source>%1 (bootloader)</source>
        <translation>%1 (Bootloader)</translation>
    </message>
    <message>
        <source>Not known in firmware upgrade mode</source>
        <translation>Im Firmware-Update-Modus nicht bekannt</translation>
    </message>
</context>
<context>
    <name>Connection</name>
    <message>
        <source>None</source>
        <translation>Keiner</translation>
    </message>
    <message>
        <source>Peak current [MMC]</source>
        <translation>Spitzenstrom [MMC]</translation>
    </message>
    <message>
        <source>Continuous current [MCC]</source>
        <translation>Dauerstrom [MCC]</translation>
    </message>
    <message>
        <source>Motor thermal model [MTC]</source>
        <translation>Thermisches Motormodell [MTC]</translation>
    </message>
    <message>
        <source>Drive temperature</source>
        <translation>Antriebstemperatur</translation>
    </message>
    <message>
        <source>Supply voltage</source>
        <translation>Versorgungsspannung</translation>
    </message>
    <message>
        <source>Torque setpoint [A]</source>
        <translation>Solldrehmoment [A]</translation>
    </message>
    <message>
        <source>Torque achieved [A]</source>
        <translation>Istdrehmoment [A]</translation>
    </message>
    <message>
        <source>Velocity setpoint</source>
        <translation>Sollgeschwindigkeit</translation>
    </message>
    <message>
        <source>Velocity achieved</source>
        <translation>Istgeschwindigkeit</translation>
    </message>
    <message>
        <source>Position setpoint</source>
        <translation>Sollposition</translation>
    </message>
    <message>
        <source>Position achieved</source>
        <translation>Istposition</translation>
    </message>
    <message>
        <source>Tracking error</source>
        <translation>Schleppfehler</translation>
    </message>
    <message>
        <source>Output voltage [%]</source>
        <translation>Ausgangsspannung [%]</translation>
    </message>
    <message>
        <source>HV bus voltage [VDC]</source>
        <translation>Zwischenkreis [VDC]</translation>
    </message>
    <message>
        <source>PWM1</source>
        <translation>PWM1</translation>
    </message>
    <message>
        <source>PWM2</source>
        <translation>PWM2</translation>
    </message>
    <message>
        <source>PWM3</source>
        <translation>PWM3</translation>
    </message>
    <message>
        <source>Debug 1</source>
        <translation>Debug 1</translation>
    </message>
    <message>
        <source>Debug 2</source>
        <translation>Debug 2</translation>
    </message>
    <message>
        <source>Flux current</source>
        <translation>Feldstrom</translation>
    </message>
    <message>
        <source>Flux voltage</source>
        <translation>Feldspannung</translation>
    </message>
    <message>
        <source>* NoDevice (interface)&lt;br&gt;</source>
        <translation>* NoDevice (Schnittstelle)&lt;br&gt;</translation>
    </message>
    <message>
        <source>* InvalidParameter (API)&lt;br&gt;</source>
        <translation>* InvalidParameter (API)&lt;br&gt;</translation>
    </message>
    <message>
        <source>* Communication (cheksum mismatch)&lt;br&gt;</source>
        <translation>* Communication (Prüfsumme stimmt nicht)&lt;br&gt;</translation>
    </message>
    <message>
        <source>* DataLegth (timeout or app error)&lt;br&gt;</source>
        <translation>* DataLegth (Zeitüberschreitung oder Anwendungsfehler)&lt;br&gt;</translation>
    </message>
    <message>
        <source>* BusError&lt;br&gt;</source>
        <translation>* BusError&lt;br&gt;</translation>
    </message>
    <message>
        <source>* Command fail (NACK)&lt;br&gt;</source>
        <translation>* Befehl fehlgeschlagen (NACK)&lt;br&gt;</translation>
    </message>
    <message>
        <source>* Invalid param address&lt;br&gt;</source>
        <translation>* Ungültige Parameteradresse&lt;br&gt;</translation>
    </message>
    <message>
        <source>* Invalid param value&lt;br&gt;</source>
        <translation>* Ungültiger Parameterwert&lt;br&gt;</translation>
    </message>
    <message>
        <source>* Value too high&lt;br&gt;</source>
        <translation>* Wert zu hoch&lt;br&gt;</translation>
    </message>
    <message>
        <source>* Value too low&lt;br&gt;</source>
        <translation>* Wert zu niedrig&lt;br&gt;</translation>
    </message>
    <message>
        <source>Occurred while setting parameter: name=%1, addr=%2, GUI value=%3, HW value=%4</source>
        <translation>Aufgetreten beim Setzen des Parameters: Name=%1, Adresse=%2, Anzeigewert=%3, Hardwarewert=%4</translation>
    </message>
    <message>
        <source>Communication error, disconnected.</source>
        <translation>Kommunikationsfehler, Verbindung getrennt.</translation>
    </message>
    <message>
        <source>Communication error flags: &lt;br&gt;%1&lt;br&gt;Disconnected. See troubleshooting at &lt;a href=&quot;%2&quot;&gt;%2&lt;/a&gt;</source>
        <translation>Kommunikationsfehler: &lt;br&gt;%1&lt;br&gt;Verbindung getrennt. Zur Fehlersuche siehe &lt;a href=&quot;%2&quot;&gt;%2&lt;/a&gt;</translation>
    </message>
    <message>
        <source>&lt;br&gt;Device errors: &lt;br&gt;%1</source>
        <translation>&lt;br&gt;Fehler des Geräts: &lt;br&gt;%1</translation>
    </message>
    <message>
        <source>The drive did not answer: check its power and the cable.</source>
        <translation>Der Antrieb hat nicht geantwortet: Prüfen Sie seine Versorgung und das Kabel.</translation>
    </message>
    <message>
        <source>The drive&apos;s answer came damaged: check the cable, its shield and the termination.</source>
        <translation>Die Antwort des Antriebs kam beschädigt an: Prüfen Sie das Kabel, dessen Schirm und den Abschluss.</translation>
    </message>
    <message>
        <source>The port is open, but nobody answered at address %1: check the drive&apos;s power, its address and the cable.</source>
        <translation>Die Schnittstelle ist offen, aber unter Adresse %1 hat niemand geantwortet: Prüfen Sie Versorgung und Adresse des Antriebs und das Kabel.</translation>
    </message>
    <message>
        <source>Something answered at address %1, but damaged: check the cable, its shield and the termination.</source>
        <translation>Unter Adresse %1 hat etwas geantwortet, aber beschädigt: Prüfen Sie das Kabel, dessen Schirm und den Abschluss.</translation>
    </message>
    <message>
        <source>There is no port %1: check that the adapter is plugged in.</source>
        <translation>Es gibt keine Schnittstelle %1: Prüfen Sie, ob der Adapter eingesteckt ist.</translation>
    </message>
    <message>
        <source>There is no permission to use %1: ask for membership in the group that owns it, often &quot;dialout&quot;, and log in again.</source>
        <translation>%1 darf nicht benutzt werden: Lassen Sie sich in die Gruppe aufnehmen, der die Schnittstelle gehört, oft „dialout“, und melden Sie sich neu an.</translation>
    </message>
    <message>
        <source>%1 is in use by another program.</source>
        <translation>%1 wird von einem anderen Programm benutzt.</translation>
    </message>
    <message>
        <source>%1 is not a serial port.</source>
        <translation>%1 ist keine serielle Schnittstelle.</translation>
    </message>
    <message>
        <source>%1 cannot be opened: %2.</source>
        <translation>%1 kann nicht geöffnet werden: %2.</translation>
    </message>
    <message>
        <source>The drive refused a write; the connection goes on.&lt;br&gt;Device errors: &lt;br&gt;%1</source>
        <translation>Der Antrieb hat einen Schreibzugriff abgelehnt; die Verbindung besteht weiter.&lt;br&gt;Fehler des Geräts: &lt;br&gt;%1</translation>
    </message>
    <message>
        <source>&lt;br&gt;This drive: %1 to %2.</source>
        <translation>&lt;br&gt;Dieser Antrieb: %1 bis %2.</translation>
    </message>
    <message>
        <source>Writing broke off: it is not sure that any of the settings reached the drive.</source>
        <translation>Das Schreiben brach ab: Es ist nicht sicher, dass eine der Einstellungen den Antrieb erreicht hat.</translation>
    </message>
    <message>
        <source>Writing broke off: part of the settings reached the drive. The last that surely did is %1.</source>
        <translation>Das Schreiben brach ab: Ein Teil der Einstellungen hat den Antrieb erreicht. Die letzte, die sicher ankam, ist %1.</translation>
    </message>
    <message>
        <source>The drive did not confirm that it was enabled, so it was disabled again. It shows that it is not enabled.</source>
        <translation>Der Antrieb hat die Freigabe nicht bestätigt und wurde deshalb wieder gesperrt. Er zeigt, dass er nicht freigegeben ist.</translation>
    </message>
    <message>
        <source>The drive did not confirm that it was enabled, so a disable was sent. It shows that it is still enabled: use the machine&apos;s own stop.</source>
        <translation>Der Antrieb hat die Freigabe nicht bestätigt, deshalb wurde ein Sperrbefehl gesendet. Er zeigt, dass er noch freigegeben ist: Benutzen Sie den Not-Halt der Maschine.</translation>
    </message>
    <message>
        <source>The drive did not confirm that it was enabled, and does not answer to a disable either: it may be enabled. Use the machine&apos;s own stop.</source>
        <translation>Der Antrieb hat die Freigabe nicht bestätigt und antwortet auch auf den Sperrbefehl nicht: Er kann freigegeben sein. Benutzen Sie den Not-Halt der Maschine.</translation>
    </message>
    <message>
        <source>The drive at address %2 on %1 was disabled without a connection. It shows that it is not enabled.</source>
        <translation>Der Antrieb mit Adresse %2 an %1 wurde ohne Verbindung gesperrt. Er zeigt, dass er nicht freigegeben ist.</translation>
    </message>
    <message>
        <source>The drive at address %2 on %1 answers, but shows that it is still enabled: use the machine&apos;s own stop.</source>
        <translation>Der Antrieb mit Adresse %2 an %1 antwortet, zeigt aber, dass er noch freigegeben ist: Benutzen Sie den Not-Halt der Maschine.</translation>
    </message>
    <message>
        <source>The drive at address %2 on %1 did not confirm that it was disabled: it may still be powered. Use the machine&apos;s own stop.</source>
        <translation>Der Antrieb mit Adresse %2 an %1 hat den Sperrbefehl nicht bestätigt: Er kann noch bestromt sein. Benutzen Sie den Not-Halt der Maschine.</translation>
    </message>
    <message>
        <source>The drive at address %2 on %1 could not be told to disable: it may still be powered. Use the machine&apos;s own stop.&lt;br&gt;</source>
        <translation>Der Sperrbefehl konnte dem Antrieb mit Adresse %2 an %1 nicht übermittelt werden: Er kann noch bestromt sein. Benutzen Sie den Not-Halt der Maschine.&lt;br&gt;</translation>
    </message>
    <message>
        <source>Initialized</source>
        <translation>Initialisiert</translation>
    </message>
    <message>
        <source>Error recovering</source>
        <translation>Rückkehr zum Sollwert</translation>
    </message>
    <message>
        <source>Tracking error warn</source>
        <translation>Schleppfehler-Warnung</translation>
    </message>
    <message>
        <source>Target reached</source>
        <translation>Ziel erreicht</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Freigegeben</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Läuft</translation>
    </message>
    <message>
        <source>Homing active</source>
        <translation>Referenzfahrt aktiv</translation>
    </message>
    <message>
        <source>Braking</source>
        <translation>Bremst</translation>
    </message>
    <message>
        <source>Permanent stop</source>
        <translation>Dauerhalt</translation>
    </message>
    <message>
        <source>Voltages good</source>
        <translation>Spannungen gut</translation>
    </message>
    <message>
        <source>Fault stopped</source>
        <translation>Störungshalt</translation>
    </message>
    <message>
        <source>Ready for use</source>
        <translation>Betriebsbereit</translation>
    </message>
    <message>
        <source>STO active</source>
        <translation>STO aktiv</translation>
    </message>
    <message>
        <source>Over velocity</source>
        <translation>Überdrehzahl</translation>
    </message>
    <message>
        <source>Hardware</source>
        <translation>Hardware</translation>
    </message>
    <message>
        <source>Over temperature</source>
        <translation>Übertemperatur</translation>
    </message>
    <message>
        <source>Feedback</source>
        <translation>Geber</translation>
    </message>
    <message>
        <source>Over current</source>
        <translation>Überstrom</translation>
    </message>
    <message>
        <source>Internal comm error</source>
        <translation>Interne Kommunikation</translation>
    </message>
    <message>
        <source>Power stage forced off</source>
        <translation>Endstufe abgeschaltet</translation>
    </message>
    <message>
        <source>Under voltage</source>
        <translation>Unterspannung</translation>
    </message>
    <message>
        <source>Over voltage</source>
        <translation>Überspannung</translation>
    </message>
    <message>
        <source>Motion range</source>
        <translation>Bewegungsbereich</translation>
    </message>
    <message>
        <source>Firmware error</source>
        <translation>Firmwarefehler</translation>
    </message>
    <message>
        <source>Init</source>
        <translation>Initialisierung</translation>
    </message>
    <message>
        <source>Motion</source>
        <translation>Bewegung</translation>
    </message>
    <message>
        <source>Zetabus</source>
        <translation>Zetabus</translation>
    </message>
    <message>
        <source>GPI 1</source>
        <translation>GPI 1</translation>
    </message>
    <message>
        <source>GPI 2</source>
        <translation>GPI 2</translation>
    </message>
    <message>
        <source>GPI 3</source>
        <translation>GPI 3</translation>
    </message>
    <message>
        <source>GPI 4</source>
        <translation>GPI 4</translation>
    </message>
    <message>
        <source>GPI 5</source>
        <translation>GPI 5</translation>
    </message>
    <message>
        <source>GPI 6</source>
        <translation>GPI 6</translation>
    </message>
    <message>
        <source>HSIN 1</source>
        <translation>HSIN 1</translation>
    </message>
    <message>
        <source>HSIN 2</source>
        <translation>HSIN 2</translation>
    </message>
    <message>
        <source>ANA1 as digital</source>
        <translation>ANA1 digital</translation>
    </message>
    <message>
        <source>ANA2 as digital</source>
        <translation>ANA2 digital</translation>
    </message>
    <message>
        <source>ENC A</source>
        <translation>ENC A</translation>
    </message>
    <message>
        <source>ENC B</source>
        <translation>ENC B</translation>
    </message>
    <message>
        <source>ENC C</source>
        <translation>ENC C</translation>
    </message>
    <message>
        <source>ENC D</source>
        <translation>ENC D</translation>
    </message>
    <message>
        <source>Hall U</source>
        <translation>Hall U</translation>
    </message>
    <message>
        <source>Hall V</source>
        <translation>Hall V</translation>
    </message>
    <message>
        <source>Hall W</source>
        <translation>Hall W</translation>
    </message>
    <message>
        <source>Soft enable</source>
        <translation>Software-Freigabe</translation>
    </message>
    <message>
        <source>Phys enable</source>
        <translation>Freigabeeingang</translation>
    </message>
    <message>
        <source>Pos feed enable</source>
        <translation>Freigabe pos. Richtung</translation>
    </message>
    <message>
        <source>Neg feed enable</source>
        <translation>Freigabe neg. Richtung</translation>
    </message>
    <message>
        <source>Home switch</source>
        <translation>Referenzschalter</translation>
    </message>
    <message>
        <source>Clear faults</source>
        <translation>Störungen quittieren</translation>
    </message>
    <message>
        <source>HV bus voltage&amp;nbsp;&amp;nbsp;%1 VDC&lt;br&gt;</source>
        <translation>Zwischenkreis&amp;nbsp;&amp;nbsp;%1 VDC&lt;br&gt;</translation>
    </message>
    <message>
        <source>Device temperature&amp;nbsp;&amp;nbsp;%1 &amp;deg;C&lt;br&gt;</source>
        <translation>Gerätetemperatur&amp;nbsp;&amp;nbsp;%1 &amp;deg;C&lt;br&gt;</translation>
    </message>
    <message>
        <source>Actual current limit&amp;nbsp;&amp;nbsp;&amp;plusmn;%1 A&lt;br&gt;</source>
        <translation>Aktuelle Stromgrenze&amp;nbsp;&amp;nbsp;&amp;plusmn;%1 A&lt;br&gt;</translation>
    </message>
    <message>
        <source>Last limit reason&amp;nbsp;&amp;nbsp;%1&lt;br&gt;</source>
        <translation>Letzte Begrenzung durch&amp;nbsp;&amp;nbsp;%1&lt;br&gt;</translation>
    </message>
    <message>
        <source>Output current&amp;nbsp;&amp;nbsp;%1 A&lt;br&gt;</source>
        <translation>Ausgangsstrom&amp;nbsp;&amp;nbsp;%1 A&lt;br&gt;</translation>
    </message>
    <message>
        <source>Velocity feedback&amp;nbsp;&amp;nbsp;%1 r/s&lt;br&gt;</source>
        <translation>Istgeschwindigkeit&amp;nbsp;&amp;nbsp;%1 U/s&lt;br&gt;</translation>
    </message>
    <message>
        <source>Velocity feedback (raw)&amp;nbsp;&amp;nbsp;%1&lt;br&gt;</source>
        <translation>Istgeschwindigkeit (roh)&amp;nbsp;&amp;nbsp;%1&lt;br&gt;</translation>
    </message>
    <message>
        <source>Position feedback&amp;nbsp;&amp;nbsp;%1&lt;br&gt;</source>
        <translation>Istposition&amp;nbsp;&amp;nbsp;%1&lt;br&gt;</translation>
    </message>
    <message>
        <source>Setpoint value&amp;nbsp;&amp;nbsp;%1&lt;br&gt;</source>
        <translation>Sollwert&amp;nbsp;&amp;nbsp;%1&lt;br&gt;</translation>
    </message>
    <message>
        <source>&lt;br&gt;Fault location ID 1 %1 &lt;a href=%2&gt;?&lt;/a&gt;</source>
        <translation>&lt;br&gt;Störungsort 1 %1 &lt;a href=%2&gt;?&lt;/a&gt;</translation>
    </message>
    <message>
        <source>&lt;br&gt;Fault location ID 2 %1 &lt;a href=%2&gt;?&lt;/a&gt;</source>
        <translation>&lt;br&gt;Störungsort 2 %1 &lt;a href=%2&gt;?&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Debug %1&amp;nbsp;&amp;nbsp;%2&lt;br&gt;</source>
        <translation>Debug %1&amp;nbsp;&amp;nbsp;%2&lt;br&gt;</translation>
    </message>
    <message>
        <source>Param %1&amp;nbsp;&amp;nbsp;%2&lt;br&gt;</source>
        <translation>Parameter %1&amp;nbsp;&amp;nbsp;%2&lt;br&gt;</translation>
    </message>
    <message>
        <source>&lt;br&gt;&lt;font style=&quot;color:#e00&quot;&gt;&lt;b&gt;!&lt;/b&gt; = reason for inactivity&lt;/font&gt;</source>
        <translation>&lt;br&gt;&lt;font style=&quot;color:#e00&quot;&gt;&lt;b&gt;!&lt;/b&gt; = Grund für den Stillstand&lt;/font&gt;</translation>
    </message>
    <message>
        <source>Analog in 1&amp;nbsp;&amp;nbsp;%1 V &lt;br&gt;</source>
        <translation>Analogeingang 1&amp;nbsp;&amp;nbsp;%1 V &lt;br&gt;</translation>
    </message>
    <message>
        <source>Analog in 2&amp;nbsp;&amp;nbsp;%1 V &lt;br&gt;</source>
        <translation>Analogeingang 2&amp;nbsp;&amp;nbsp;%1 V &lt;br&gt;</translation>
    </message>
    <message>
        <source>Analog Enc A&amp;nbsp;&amp;nbsp;%1 V &lt;br&gt;</source>
        <translation>Analog Enc A&amp;nbsp;&amp;nbsp;%1 V &lt;br&gt;</translation>
    </message>
    <message>
        <source>Analog Enc B&amp;nbsp;&amp;nbsp;%1 V &lt;br&gt;</source>
        <translation>Analog Enc B&amp;nbsp;&amp;nbsp;%1 V &lt;br&gt;</translation>
    </message>
    <message>
        <source>Connect failed</source>
        <translation>Verbinden fehlgeschlagen</translation>
    </message>
    <message>
        <source>Unable to connect. Possibly incompatible COM adapter selected or device is already used by another application</source>
        <translation>Keine Verbindung möglich. Vielleicht ist ein unpassender COM-Adapter gewählt, oder das Gerät wird schon von einem anderen Programm benutzt</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Verbunden</translation>
    </message>
    <message>
        <source>Connected to device in firmware upgrade mode (bootloader version %1). To begin upgrading, select file from the button below. Upgrading starts immediately after file opened.&lt;br&gt;&lt;br&gt; &lt;b&gt;Backup&lt;/b&gt; your settings before upgrade as all parameters will be reset to defaults!&lt;br&gt;&lt;br&gt;&lt;b&gt;Ensure&lt;/b&gt; that you have a firmware file designed for your hardware type and version!</source>
        <translation>Verbunden mit einem Gerät im Firmware-Update-Modus (Bootloader-Version %1). Um das Update zu beginnen, wählen Sie mit der Schaltfläche unten eine Datei. Das Update startet sofort nach dem Öffnen der Datei.&lt;br&gt;&lt;br&gt; &lt;b&gt;Sichern&lt;/b&gt; Sie Ihre Einstellungen vor dem Update, denn alle Parameter werden auf Werkseinstellungen zurückgesetzt!&lt;br&gt;&lt;br&gt;&lt;b&gt;Stellen Sie sicher&lt;/b&gt;, dass Sie eine Firmwaredatei haben, die für Typ und Version Ihrer Hardware bestimmt ist!</translation>
    </message>
    <message>
        <source>&lt;br&gt;&lt;b&gt;Note:&lt;/b&gt; The device seem to have some fault bits active (%1 hex%2). This could mean that the last upgrade of firmware has failed, or internal memory of device has corrupted. If this happens randomly, check voltage supply stability and EMI noise. You may continue FW upgrade normally.</source>
        <translation>&lt;br&gt;&lt;b&gt;Hinweis:&lt;/b&gt; Beim Gerät scheinen Störungsbits gesetzt zu sein (%1 hex%2). Das kann heißen, dass das letzte Firmware-Update fehlgeschlagen ist oder der interne Speicher des Geräts beschädigt ist. Geschieht dies gelegentlich, prüfen Sie die Stabilität der Versorgungsspannung und EMV-Störungen. Sie können das Firmware-Update normal fortsetzen.</translation>
    </message>
    <message>
        <source> = chip firmware memory checksum mismatch</source>
        <translation> = Prüfsumme des Firmwarespeichers im Chip stimmt nicht</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>Getrennt</translation>
    </message>
    <message>
        <source>Unable to connect. The adapter was pulled out during the search: plug it in and search again.</source>
        <translation>Keine Verbindung möglich. Der Adapter wurde während der Suche abgezogen: Stecken Sie ihn ein und suchen Sie erneut.</translation>
    </message>
    <message>
        <source>The bus is never quiet, so no drive can be found on it. Check the wiring and that the port belongs to a Zetabus adapter.</source>
        <translation>Der Bus ist nie ruhig, deshalb kann daran kein Antrieb gefunden werden. Prüfen Sie die Verdrahtung und ob die Schnittstelle zu einem Zetabus-Adapter gehört.</translation>
    </message>
    <message>
        <source>No scope channels selected. Select at least one.</source>
        <translation>Keine Kanäle zum Aufzeichnen gewählt. Wählen Sie mindestens einen.</translation>
    </message>
    <message>
        <source>Start capture</source>
        <translation>Aufzeichnung starten</translation>
    </message>
    <message>
        <source>Scope waiting..</source>
        <translation>Wartet auf Trigger..</translation>
    </message>
    <message>
        <source>Downloading..</source>
        <translation>Wird ausgelesen..</translation>
    </message>
    <message>
        <source>The drive refused to be enabled.&lt;br&gt;Device errors: &lt;br&gt;%1</source>
        <translation>Der Antrieb hat die Freigabe abgelehnt.&lt;br&gt;Fehler des Geräts: &lt;br&gt;%1</translation>
    </message>
    <message>
        <source>The drive refused to be enabled by force.&lt;br&gt;Device errors: &lt;br&gt;%1</source>
        <translation>Der Antrieb hat die erzwungene Freigabe abgelehnt.&lt;br&gt;Fehler des Geräts: &lt;br&gt;%1</translation>
    </message>
    <message>
        <source>The drive refused to save its settings to flash.&lt;br&gt;Device errors: &lt;br&gt;%1</source>
        <translation>Der Antrieb hat es abgelehnt, seine Einstellungen im Flash zu speichern.&lt;br&gt;Fehler des Geräts: &lt;br&gt;%1</translation>
    </message>
    <message>
        <source>The drive refused to start homing.&lt;br&gt;Device errors: &lt;br&gt;%1</source>
        <translation>Der Antrieb hat es abgelehnt, die Referenzfahrt zu starten.&lt;br&gt;Fehler des Geräts: &lt;br&gt;%1</translation>
    </message>
    <message>
        <source>The drive refused the setpoint %1.&lt;br&gt;Device errors: &lt;br&gt;%2</source>
        <translation>Der Antrieb hat den Sollwert %1 abgelehnt.&lt;br&gt;Fehler des Geräts: &lt;br&gt;%2</translation>
    </message>
    <message>
        <source>This drive cannot be restarted in firmware upgrade mode by a command.</source>
        <translation>Dieser Antrieb kann nicht per Befehl im Firmware-Update-Modus neu gestartet werden.</translation>
    </message>
    <message>
        <source>Measure function is available only in KETA drive models</source>
        <translation>Die Messfunktion gibt es nur bei KETA-Antrieben</translation>
    </message>
    <message>
        <source>Measure function requires newer firmware version</source>
        <translation>Die Messfunktion erfordert eine neuere Firmwareversion</translation>
    </message>
    <message>
        <source>Measurement failed. Ensure that all required conditions are met. See &lt;i&gt;%1&lt;/i&gt;</source>
        <translation>Die Messung ist fehlgeschlagen. Stellen Sie sicher, dass alle Voraussetzungen erfüllt sind. Siehe &lt;i&gt;%1&lt;/i&gt;</translation>
    </message>
    <message>
        <source>&lt;b&gt;The drive may still be powered.&lt;/b&gt; Esc tries to disable it; the sure way is the machine&apos;s own stop.&lt;br&gt;</source>
        <translation>&lt;b&gt;Der Antrieb kann noch bestromt sein.&lt;/b&gt; Esc versucht, ihn zu sperren; der sichere Weg ist der Not-Halt der Maschine.&lt;br&gt;</translation>
    </message>
    <message>
        <source>Error: %1</source>
        <translation>Fehler: %1</translation>
    </message>
    <message>
        <source>No device in firmware upgrade mode is connected</source>
        <translation>Kein Gerät im Firmware-Update-Modus ist verbunden</translation>
    </message>
    <message>
        <source>The file does not contain a firmware</source>
        <translation>Die Datei enthält keine Firmware</translation>
    </message>
    <message>
        <source>%1 firmware file loaded successfully</source>
        <translation>Firmwaredatei für %1 erfolgreich geladen</translation>
    </message>
    <message>
        <source>&lt;b&gt;All done with success!&lt;/b&gt; Drive has been started with one-time bus address of 16 and you may connect to it now via Connect button. To return using normal device address, power off, change device address and power up again.</source>
        <translation>&lt;b&gt;Alles erfolgreich abgeschlossen!&lt;/b&gt; Der Antrieb wurde einmalig mit der Busadresse 16 gestartet, und Sie können sich jetzt über „Mit Antrieb verbinden“ mit ihm verbinden. Um zur normalen Geräteadresse zurückzukehren, schalten Sie aus, ändern die Geräteadresse und schalten wieder ein.</translation>
    </message>
    <message>
        <source>Flashing I/O CPU firmware failed. Power off, reconnect and try again. Ensure that firmware file is compatible with your device.</source>
        <translation>Das Flashen der Firmware der E/A-CPU ist fehlgeschlagen. Schalten Sie aus, verbinden Sie neu und versuchen Sie es noch einmal. Stellen Sie sicher, dass die Firmwaredatei zu Ihrem Gerät passt.</translation>
    </message>
    <message>
        <source>Flashing firmware failed. Power off, reconnect and try again. Ensure that firmware file is compatible with your device.</source>
        <translation>Das Flashen der Firmware ist fehlgeschlagen. Schalten Sie aus, verbinden Sie neu und versuchen Sie es noch einmal. Stellen Sie sicher, dass die Firmwaredatei zu Ihrem Gerät passt.</translation>
    </message>
    <message>
        <source>Flashing TarnwellCore firmware failed. Power off, reconnect and try again. Ensure that firmware file is compatible with your device.</source>
        <translation>Das Flashen der TarnwellCore-Firmware ist fehlgeschlagen. Schalten Sie aus, verbinden Sie neu und versuchen Sie es noch einmal. Stellen Sie sicher, dass die Firmwaredatei zu Ihrem Gerät passt.</translation>
    </message>
    <message>
        <source>The new firmware was written, but the drive has not confirmed that it starts it. Power off, reconnect and try again if it does not run.</source>
        <translation>Die neue Firmware wurde geschrieben, aber der Antrieb hat nicht bestätigt, dass er sie startet. Schalten Sie aus, verbinden Sie neu und versuchen Sie es noch einmal, falls sie nicht läuft.</translation>
    </message>
    <message>
        <source>Errors occurred: %1</source>
        <translation>Es traten Fehler auf: %1</translation>
    </message>
    <message>
        <source>&lt;b&gt;STEP1: I/O side firmware&lt;/b&gt;</source>
        <translation>&lt;b&gt;SCHRITT 1: Firmware der E/A-Seite&lt;/b&gt;</translation>
    </message>
    <message>
        <source>&lt;b&gt;Uploading firmware&lt;/b&gt;</source>
        <translation>&lt;b&gt;Firmware wird übertragen&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Erasing IO side firmware on device...</source>
        <translation>Firmware der E/A-Seite im Gerät wird gelöscht...</translation>
    </message>
    <message>
        <source>Erasing existing firmware on device...</source>
        <translation>Vorhandene Firmware im Gerät wird gelöscht...</translation>
    </message>
    <message>
        <source>Done. Uploading new IO side firmware...</source>
        <translation>Fertig. Neue Firmware der E/A-Seite wird übertragen...</translation>
    </message>
    <message>
        <source>Done. Uploading new firmware...</source>
        <translation>Fertig. Neue Firmware wird übertragen...</translation>
    </message>
    <message>
        <source>Done!</source>
        <translation>Fertig!</translation>
    </message>
    <message>
        <source>The installed firmware did not pass device&apos;s verification (possible checksum error or icompatible FW)! Flashing failed.</source>
        <translation>Die installierte Firmware hat die Prüfung durch das Gerät nicht bestanden (vielleicht Prüfsummenfehler oder unpassende Firmware)! Das Flashen ist fehlgeschlagen.</translation>
    </message>
    <message>
        <source>Write protecting flash.</source>
        <translation>Flash wird schreibgeschützt.</translation>
    </message>
    <message>
        <source>I/O side flash contents verified and passed</source>
        <translation>Flash-Inhalt der E/A-Seite geprüft und in Ordnung</translation>
    </message>
    <message>
        <source>Device memory contents verified and passed</source>
        <translation>Speicherinhalt des Geräts geprüft und in Ordnung</translation>
    </message>
    <message>
        <source>&lt;b&gt;STEP2: TarnwellCore firmware&lt;/b&gt;</source>
        <translation>&lt;b&gt;SCHRITT 2: TarnwellCore-Firmware&lt;/b&gt;</translation>
    </message>
    <message>
        <source>The FW file does not contain TarnwellCore firmware, previously installed TarnwellCore FW will remain intact</source>
        <translation>Die Firmwaredatei enthält keine TarnwellCore-Firmware, die installierte TarnwellCore-Firmware bleibt unverändert</translation>
    </message>
    <message>
        <source>Flashing TarnwellCore firmware (takes about 20 secs)...</source>
        <translation>TarnwellCore-Firmware wird geflasht (dauert etwa 20 s)...</translation>
    </message>
    <message>
        <source>TarnwellCore flash contents verified and passed</source>
        <translation>TarnwellCore-Flash-Inhalt geprüft und in Ordnung</translation>
    </message>
    <message>
        <source>Uploaded bytes: %1</source>
        <translation>Übertragene Bytes: %1</translation>
    </message>
    <message>
        <source>The drive&apos;s answers contradict each other: try again, and check that no two drives have the same address.</source>
        <translation>Die Antworten des Antriebs widersprechen sich: Versuchen Sie es noch einmal und prüfen Sie, dass keine zwei Antriebe dieselbe Adresse haben.</translation>
    </message>
    <message>
        <source>%1 was not written: register %2 is a command to the drive and not a setting.</source>
        <translation>%1 wurde nicht geschrieben: Register %2 ist ein Befehl an den Antrieb und keine Einstellung.</translation>
    </message>
    <message>
        <source>%1 was not written: %2 in register %3 is more than the bus can carry.</source>
        <translation>%1 wurde nicht geschrieben: %2 in Register %3 ist mehr, als der Bus übertragen kann.</translation>
    </message>
    <message>
        <source>Not available in firmware upgrade mode</source>
        <translation>Im Firmware-Update-Modus nicht verfügbar</translation>
    </message>
    <message>
        <source>The drive did not confirm the disable: it may still be powered. Esc tries again; the sure way is the machine&apos;s own stop.</source>
        <translation>Der Antrieb hat den Sperrbefehl nicht bestätigt: Er kann noch bestromt sein. Esc versucht es noch einmal; der sichere Weg ist der Not-Halt der Maschine.</translation>
    </message>
    <message>
        <source>Unknown (%1)</source>
        <translation>Unbekannt (%1)</translation>
    </message>
    <message>
        <source>&lt;br/&gt;&lt;br/&gt;Note: it&apos;s also possible that this message is caused by connection instability. For troubleshooting, see %1</source>
        <translation>&lt;br/&gt;&lt;br/&gt;Hinweis: Diese Meldung kann auch von einer instabilen Verbindung kommen. Zur Fehlersuche siehe %1</translation>
    </message>
    <message>
        <source>&lt;br/&gt;&lt;br/&gt;&lt;b&gt;Device could not be restarted in firmware upgrade mode: it did not confirm the command and is probably still in normal mode. Try connecting again.&lt;/b&gt;</source>
        <translation>&lt;br/&gt;&lt;br/&gt;&lt;b&gt;Das Gerät konnte nicht im Firmware-Update-Modus neu gestartet werden: Es hat den Befehl nicht bestätigt und ist vermutlich noch im normalen Betrieb. Versuchen Sie, erneut zu verbinden.&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Unsupported device model connected. Try upgrading Velbrin to latest version. Connected device ID %1</source>
        <translation>Nicht unterstütztes Gerätemodell verbunden. Versuchen Sie es mit der neuesten Version von Velbrin. Kennung des verbundenen Geräts: %1</translation>
    </message>
    <message>
        <source>Unsupported device connected, try upgrading Velbrin</source>
        <translation>Nicht unterstütztes Gerät verbunden, versuchen Sie es mit einer neueren Version von Velbrin</translation>
    </message>
    <message>
        <source>Zetabus protocol version too old, not supported by this software version. Check older Velbrin versions from %1. Connected ZBV2 Version: %2</source>
        <translation>Die Version des Zetabus-Protokolls ist zu alt und wird von dieser Programmversion nicht unterstützt. Ältere Velbrin-Versionen finden Sie unter %1. ZBV2-Version des Geräts: %2</translation>
    </message>
    <message>
        <source>Zetabus protocol version too new, not supported by this software version. Check for Velbrin upgrades. Connected ZBV2 Version: %1</source>
        <translation>Die Version des Zetabus-Protokolls ist zu neu und wird von dieser Programmversion nicht unterstützt. Suchen Sie nach einer neueren Velbrin-Version. ZBV2-Version des Geräts: %1</translation>
    </message>
    <message>
        <source>Device firmware version too new, not supported by this software version. Check for Velbrin upgrades from %1. Connected FW version: %2</source>
        <translation>Die Firmwareversion des Geräts ist zu neu und wird von dieser Programmversion nicht unterstützt. Neuere Velbrin-Versionen finden Sie unter %1. Firmwareversion des Geräts: %2</translation>
    </message>
    <message>
        <source>Device firmware version too old, not supported by this software version. Check for firmware upgrades at %1. Connected FW Version is %2 and the olders supported FW version is %3.&lt;br/&gt;&lt;br/&gt;You &lt;i&gt;may&lt;/i&gt; need to use older Velbrin version to upgrade firmware. Old Velbrin release can be found from %4</source>
        <translation>Die Firmwareversion des Geräts ist zu alt und wird von dieser Programmversion nicht unterstützt. Firmware-Updates finden Sie unter %1. Firmwareversion des Geräts: %2, älteste unterstützte: %3.&lt;br/&gt;&lt;br/&gt;Vielleicht &lt;i&gt;brauchen&lt;/i&gt; Sie für das Firmware-Update eine ältere Velbrin-Version. Ältere Velbrin-Versionen finden Sie unter %4</translation>
    </message>
    <message>
        <source>&lt;br/&gt;&lt;br/&gt;&lt;b&gt;Device now has been restarted in firmware upgrade mode. Try connecting again and installing a newer firmware to it.&lt;/b&gt;</source>
        <translation>&lt;br/&gt;&lt;br/&gt;&lt;b&gt;Das Gerät wurde jetzt im Firmware-Update-Modus neu gestartet. Verbinden Sie erneut und installieren Sie eine neuere Firmware.&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Device TarnwellCore firmware version too new, not supported by this software version. Check for Velbrin upgrades from %1. Connected TC FW version: %2</source>
        <translation>Die Version der TarnwellCore-Firmware ist zu neu und wird von dieser Programmversion nicht unterstützt. Neuere Velbrin-Versionen finden Sie unter %1. TC-Firmwareversion des Geräts: %2</translation>
    </message>
    <message>
        <source>Device TarnwellCore firmware version too old, not supported by this software version. Check for firmware upgrades at %1. Connected TC FW Version is %2 and the olders supported TC FW version is %3.&lt;br/&gt;&lt;br/&gt;You &lt;i&gt;may&lt;/i&gt; need to use older Velbrin version to upgrade firmware. Old Velbrin release can be found from %4</source>
        <translation>Die Version der TarnwellCore-Firmware ist zu alt und wird von dieser Programmversion nicht unterstützt. Firmware-Updates finden Sie unter %1. TC-Firmwareversion des Geräts: %2, älteste unterstützte: %3.&lt;br/&gt;&lt;br/&gt;Vielleicht &lt;i&gt;brauchen&lt;/i&gt; Sie für das Firmware-Update eine ältere Velbrin-Version. Ältere Velbrin-Versionen finden Sie unter %4</translation>
    </message>
    <message>
        <source>&lt;br/&gt;&lt;br/&gt;&lt;b&gt;Device now has been restarted in firmware upgrade mode. Try connecting again and installing a newer firmware to it&lt;/b&gt;.</source>
        <translation>&lt;br/&gt;&lt;br/&gt;&lt;b&gt;Das Gerät wurde jetzt im Firmware-Update-Modus neu gestartet. Verbinden Sie erneut und installieren Sie eine neuere Firmware&lt;/b&gt;.</translation>
    </message>
    <message>
        <source>Connected device firmware version is outdated, an upgrade is recommended. Download the latest FW from &lt;i&gt;%1&lt;/i&gt;</source>
        <translation>Die Firmware des verbundenen Geräts ist veraltet, ein Update wird empfohlen. Die neueste Firmware finden Sie unter &lt;i&gt;%1&lt;/i&gt;</translation>
    </message>
    <message>
        <source>Bootloader version too new, not supported by this software version. Check for Velbrin upgrades. Connected BL Version: %1</source>
        <translation>Die Bootloader-Version ist zu neu und wird von dieser Programmversion nicht unterstützt. Suchen Sie nach einer neueren Velbrin-Version. Bootloader-Version des Geräts: %1</translation>
    </message>
    <message>
        <source>Bootloader version too old, not supported by this software version. Check older Velbrin versions from %1. Connected BL Version: %2</source>
        <translation>Die Bootloader-Version ist zu alt und wird von dieser Programmversion nicht unterstützt. Ältere Velbrin-Versionen finden Sie unter %1. Bootloader-Version des Geräts: %2</translation>
    </message>
    <message>
        <source>Invalid comm task</source>
        <translation>Ungültige Kommunikationsaufgabe</translation>
    </message>
    <message>
        <source>The test stimulus was running: the axis may go on moving for up to five seconds.</source>
        <translation>Das Testsignal lief: Die Achse kann sich noch bis zu fünf Sekunden weiterbewegen.</translation>
    </message>
</context>
<context>
    <name>ControlModeRule</name>
    <message>
        <source>Velbrin</source>
        <translation>Velbrin</translation>
    </message>
    <message>
        <source>Drive control mode changed to position control </source>
        <translation>Die Regelart des Antriebs wurde auf Positionsregelung umgestellt </translation>
    </message>
    <message>
        <source>Current position is %1, thus using setpoint commands may cause unexpected motion. Do you want to reset position feedback and setpoint values to zero?</source>
        <translation>Die aktuelle Position ist %1, deshalb können Sollwertbefehle zu unerwarteter Bewegung führen. Möchten Sie Istposition und Sollwert auf null setzen?</translation>
    </message>
    <message>
        <source>Don&apos;t reset</source>
        <translation>Nicht nullsetzen</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Nullsetzen</translation>
    </message>
    <message>
        <source>Never reset</source>
        <translation>Nie nullsetzen</translation>
    </message>
    <message>
        <source>Always reset</source>
        <translation>Immer nullsetzen</translation>
    </message>
</context>
<context>
    <name>DeviceModel</name>
    <message>
        <source>Unknown device type: %1</source>
        <translation>Unbekannter Gerätetyp: %1</translation>
    </message>
</context>
<context>
    <name>DisableWatch</name>
    <message>
        <source>The disable is not confirmed: the drive may still be powered. Use the machine&apos;s hardware stop.</source>
        <translation>Das Sperren ist nicht bestätigt: Der Antrieb kann noch bestromt sein. Benutzen Sie den Not-Halt der Maschine.</translation>
    </message>
    <message>
        <source>No drive is connected, so none was disabled. Use the machine&apos;s hardware stop if one moves.</source>
        <translation>Es ist kein Antrieb verbunden, also wurde keiner gesperrt. Benutzen Sie den Not-Halt der Maschine, falls sich einer bewegt.</translation>
    </message>
    <message>
        <source>No drive is connected: trying to disable the last one all the same...</source>
        <translation>Es ist kein Antrieb verbunden: Der letzte wird trotzdem gesperrt, wenn es geht...</translation>
    </message>
    <message>
        <source>The drive is enabled again</source>
        <translation>Der Antrieb ist wieder freigegeben</translation>
    </message>
    <message>
        <source>Disabled after %1 ms</source>
        <translation>Gesperrt nach %1 ms</translation>
    </message>
    <message>
        <source>The disable is not confirmed: the connection was lost. The drive may still be powered. Use the machine&apos;s hardware stop.</source>
        <translation>Das Sperren ist nicht bestätigt: Die Verbindung ging verloren. Der Antrieb kann noch bestromt sein. Benutzen Sie den Not-Halt der Maschine.</translation>
    </message>
</context>
<context>
    <name>Disclaimer</name>
    <message>
        <source>Velbrin starting up</source>
        <translation>Velbrin startet</translation>
    </message>
    <message>
        <source>Welcome to Velbrin servo drive configuration software!&lt;h3&gt;Important safety information&lt;/h3&gt;The most important thing while operating a servo drive is knowing the electrical and mechanical risks and hazards involved. If unsure about the dangers involved, don&apos;t use this software or it&apos;s associated hardware.&lt;br&gt;&lt;br&gt;Only a person with sufficient electrical and machinery safety skills may install the devices configured by this software.&lt;br&gt;&lt;br&gt;Tarnwell Devices or its personnell (later Producers) are not responsible of damages caused by inproper usage.&lt;br&gt;&lt;h3&gt;Limited warranty and liability&lt;/h3&gt;Producer is not liable of damages, losses or other consequences caused directly or indirectly by Tarnwell Devices products (later Products). User&apos;s responsibility is to ensure safety of system where Products are being utilized. Producer&apos;s warranty is limited to cover Products only and Producers will not cover any of the potential harms that may be caused by Products even in the case of severe Product malfunctioning or defects.&lt;br&gt;&lt;br&gt;</source>
        <translation>Willkommen bei Velbrin, der Konfigurationssoftware für Servoantriebe!&lt;h3&gt;Wichtige Sicherheitshinweise&lt;/h3&gt;Das Wichtigste beim Betrieb eines Servoantriebs ist, die damit verbundenen elektrischen und mechanischen Risiken und Gefahren zu kennen. Wenn Sie sich über die damit verbundenen Gefahren nicht im Klaren sind, benutzen Sie diese Software und die zugehörige Hardware nicht.&lt;br&gt;&lt;br&gt;Nur Personen mit ausreichender Sachkunde in elektrischer Sicherheit und Maschinensicherheit dürfen die Geräte installieren, die mit dieser Software konfiguriert werden.&lt;br&gt;&lt;br&gt;Tarnwell Devices oder sein Personal (nachfolgend „Hersteller“) haftet nicht für Schäden, die durch unsachgemäßen Gebrauch entstehen.&lt;br&gt;&lt;h3&gt;Eingeschränkte Gewährleistung und Haftung&lt;/h3&gt;Der Hersteller haftet nicht für Schäden, Verluste oder andere Folgen, die mittelbar oder unmittelbar durch Produkte von Tarnwell Devices (nachfolgend „Produkte“) entstehen. Der Benutzer ist dafür verantwortlich, die Sicherheit des Systems zu gewährleisten, in dem die Produkte eingesetzt werden. Die Gewährleistung des Herstellers beschränkt sich allein auf die Produkte; der Hersteller kommt für keinerlei mögliche Schäden auf, die durch die Produkte entstehen können, auch nicht bei schwerer Fehlfunktion oder schwerem Mangel eines Produkts.&lt;br&gt;&lt;br&gt;</translation>
    </message>
    <message>
        <source>By clicking &lt;i&gt;I Agree&lt;/i&gt; you are agreeing these terms and conditions.</source>
        <translation>Mit einem Klick auf &lt;i&gt;Ich stimme zu&lt;/i&gt; stimmen Sie diesen Bedingungen zu.</translation>
    </message>
    <message>
        <source>Disagree</source>
        <translation>Ich lehne ab</translation>
    </message>
    <message>
        <source>I Agree</source>
        <translation>Ich stimme zu</translation>
    </message>
    <message>
        <source>Velbrin</source>
        <translation>Velbrin</translation>
    </message>
    <message>
        <source>This software will exit as Disagree button was clicked. You may contact Tarnwell Devices to obtain customized agreement.</source>
        <translation>Dieses Programm wird beendet, da „Ich lehne ab“ gewählt wurde. Für eine gesonderte Vereinbarung können Sie sich an Tarnwell Devices wenden.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
</context>
<context>
    <name>DriveBoard</name>
    <message>
        <source>%1 loaded</source>
        <translation>%1 geladen</translation>
    </message>
    <message>
        <source>Saving to the drive</source>
        <translation>Speichern im Antrieb läuft</translation>
    </message>
    <message>
        <source>Saved to the drive: the settings survive a power-off</source>
        <translation>Im Antrieb gespeichert: Die Einstellungen bleiben nach dem Ausschalten erhalten</translation>
    </message>
    <message>
        <source>Not saved to the drive: it did not take the command</source>
        <translation>Nicht im Antrieb gespeichert: Er hat den Befehl nicht angenommen</translation>
    </message>
    <message>
        <source>Saved to the file %1</source>
        <translation>In der Datei %1 gespeichert</translation>
    </message>
    <message>
        <source>Edits that were not applied are gone: they were another drive&apos;s</source>
        <translation>Nicht angewendete Änderungen sind verworfen: Sie galten einem anderen Antrieb</translation>
    </message>
    <message>
        <source>the drive&apos;s values after the lost connection</source>
        <translation>Werte des Antriebs nach dem Verbindungsabbruch</translation>
    </message>
    <message>
        <source>1 edit was not applied when the connection was lost: Ctrl+Z brings it back</source>
        <translation>1 Änderung war beim Verbindungsabbruch nicht angewendet: Strg+Z holt sie zurück</translation>
    </message>
    <message>
        <source>%1 edits were not applied when the connection was lost: Ctrl+Z brings them back</source>
        <translation>%1 Änderungen waren beim Verbindungsabbruch nicht angewendet: Strg+Z holt sie zurück</translation>
    </message>
</context>
<context>
    <name>DriveDesk</name>
    <message>
        <source>Nothing to disable: the drive is in firmware upgrade mode, which drives no motor</source>
        <translation>Nichts zu sperren: Der Antrieb ist im Firmware-Update-Modus, in dem er keinen Motor antreibt</translation>
    </message>
</context>
<context>
    <name>DriveHeadline</name>
    <message>
        <source>%1 s ago</source>
        <translation>vor %1 s</translation>
    </message>
    <message>
        <source>%1 min ago</source>
        <translation>vor %1 min</translation>
    </message>
    <message>
        <source>%1 h ago</source>
        <translation>vor %1 h</translation>
    </message>
    <message>
        <source>standing</source>
        <translation>steht</translation>
    </message>
    <message>
        <source>moving</source>
        <translation>bewegt sich</translation>
    </message>
    <message>
        <source>FAULT</source>
        <translation>STÖRUNG</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 und %2 weitere</translation>
    </message>
    <message>
        <source>fault register %1</source>
        <translation>Störungsregister %1</translation>
    </message>
    <message>
        <source>%1, motor powered</source>
        <translation>%1, Motor bestromt</translation>
    </message>
    <message>
        <source>ENABLED</source>
        <translation>FREIGEGEBEN</translation>
    </message>
    <message>
        <source>homing, %1</source>
        <translation>Referenzfahrt, %1</translation>
    </message>
    <message>
        <source>motor not powered yet</source>
        <translation>Motor noch nicht bestromt</translation>
    </message>
    <message>
        <source>disabled</source>
        <translation>gesperrt</translation>
    </message>
    <message>
        <source>permanent stop until a restart</source>
        <translation>Dauerhalt bis zum Neustart</translation>
    </message>
    <message>
        <source>safe torque off is active</source>
        <translation>STO (Drehmoment sicher aus) ist aktiv</translation>
    </message>
    <message>
        <source>Firmware upgrade mode</source>
        <translation>Firmware-Update-Modus</translation>
    </message>
    <message>
        <source>address %1</source>
        <translation>Adresse %1</translation>
    </message>
    <message>
        <source>%1 at address %2</source>
        <translation>%1, Adresse %2</translation>
    </message>
    <message>
        <source>%1 at address %2, serial number %3</source>
        <translation>%1, Adresse %2, Seriennummer %3</translation>
    </message>
    <message>
        <source>%1 V, position %2</source>
        <translation>%1 V, Position %2</translation>
    </message>
    <message>
        <source>Last known: %1</source>
        <translation>Zuletzt bekannt: %1</translation>
    </message>
    <message>
        <source>%1, not connected</source>
        <translation>%1, nicht verbunden</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Verbunden</translation>
    </message>
    <message>
        <source>nothing heard yet</source>
        <translation>noch nichts gehört</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Nicht verbunden</translation>
    </message>
</context>
<context>
    <name>EditHistory</name>
    <message>
        <source>There is no edit to undo</source>
        <translation>Es gibt keine Änderung zum Rückgängigmachen</translation>
    </message>
    <message>
        <source>Undone: %1</source>
        <translation>Rückgängig gemacht: %1</translation>
    </message>
    <message>
        <source>There is no edit to do again</source>
        <translation>Es gibt keine Änderung zum Wiederholen</translation>
    </message>
    <message>
        <source>Done again: %1</source>
        <translation>Wiederholt: %1</translation>
    </message>
</context>
<context>
    <name>EditMarks</name>
    <message>
        <source>The field was changed and not applied. A click brings the drive&apos;s value back.</source>
        <translation>Das Feld wurde geändert und nicht angewendet. Ein Klick holt den Wert des Antriebs zurück.</translation>
    </message>
    <message>
        <source>drive: %1</source>
        <translation>Antrieb: %1</translation>
    </message>
    <message>
        <source>%1 edited, the drive has %2: take the edit back</source>
        <translation>%1 geändert, der Antrieb hat %2: Änderung zurücknehmen</translation>
    </message>
</context>
<context>
    <name>ErrorWindow</name>
    <message>
        <source>Velbrin</source>
        <translation>Velbrin</translation>
    </message>
</context>
<context>
    <name>FaultLimitsPage</name>
    <message>
        <source>Fault limits: when the drive stops by itself</source>
        <translation>Grenzen: wann der Antrieb von selbst anhält</translation>
    </message>
    <message>
        <source>Electrical limits</source>
        <translation>Elektrische Grenzen</translation>
    </message>
    <message>
        <source>&lt;p&gt;Current at which the drive shuts off at once. Keep it 20 to 60 % over [MMC]; too near gives false alarms, too far protects late.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Strom, bei dem der Antrieb sofort abschaltet. Halten Sie ihn 20 bis 60 % über [MMC]; zu nah gibt Fehlauslösungen, zu weit schützt zu spät.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>[FOC] Over current fault threshold</source>
        <translation>[FOC] Abschaltgrenze Überstrom</translation>
    </message>
    <message>
        <source> A</source>
        <translation> A</translation>
    </message>
    <message>
        <source>&lt;p&gt;Supply voltage at which the drive shuts off, mostly while braking. Set it over the highest normal supply and under what supply and drive stand.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Versorgungsspannung, bei der der Antrieb abschaltet, meist beim Bremsen. Stellen Sie sie über die höchste normale Versorgung und unter das, was Netzteil und Antrieb aushalten.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>[FOV] Over voltage fault threshold</source>
        <translation>[FOV] Abschaltgrenze Überspannung</translation>
    </message>
    <message>
        <source> V</source>
        <translation> V</translation>
    </message>
    <message>
        <source>&lt;p&gt;Supply voltage under which the drive shuts off. Set it 20 to 40 % under the normal supply; too low weakens protection, too high trips on sags.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Versorgungsspannung, unter der der Antrieb abschaltet. Stellen Sie sie 20 bis 40 % unter die normale Versorgung; zu niedrig schwächt den Schutz, zu hoch löst bei Einbrüchen aus.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>[FUV] Under voltage fault threshold</source>
        <translation>[FUV] Abschaltgrenze Unterspannung</translation>
    </message>
    <message>
        <source>Motion fault limits</source>
        <translation>Bewegungsgrenzen</translation>
    </message>
    <message>
        <source>&lt;p&gt;Largest accepted distance between setpoint and position. Too small trips on quick moves and steps, too large lets a jammed axis push on for long.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Größter zugelassener Abstand zwischen Sollwert und Position. Zu klein löst bei schnellen Bewegungen und Sprüngen aus, zu groß lässt eine blockierte Achse lange weiterdrücken.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>[FPT] Position tracking error threshold</source>
        <translation>[FPT] Schleppfehlergrenze Position</translation>
    </message>
    <message>
        <source> counts</source>
        <translation> Ink</translation>
    </message>
    <message>
        <source>&lt;p&gt;Largest accepted difference between commanded and measured velocity. Too small trips while accelerating, too large notices a runaway late.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Größte zugelassene Differenz zwischen Soll- und Istgeschwindigkeit. Zu klein löst beim Beschleunigen aus, zu groß bemerkt ein Durchgehen spät.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>[FVT] Velocity tracking error threshold</source>
        <translation>[FVT] Schleppfehlergrenze Geschwindigkeit</translation>
    </message>
    <message>
        <source> cnt/cycle</source>
        <translation> Ink/Zyklus</translation>
    </message>
    <message>
        <source>&lt;p&gt;How long a tracking error must last to become a fault; 0 means at once. Raise it to ride through short overloads; too long lets a jammed axis push on.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Wie lange ein Schleppfehler anhalten muss, um zur Störung zu werden; 0 heißt sofort. Erhöhen Sie den Wert, um kurze Überlasten zu überstehen; zu lang lässt eine blockierte Achse weiterdrücken.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>[FFT] Tracking fault delay</source>
        <translation>[FFT] Verzögerung Schleppfehlerstörung</translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source>&lt;p&gt;Measured velocity at which the drive shuts off. Keep it at least 12 % over [CVL] and under what the machine stands.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Gemessene Geschwindigkeit, bei der der Antrieb abschaltet. Halten Sie sie mindestens 12 % über [CVL] und unter dem, was die Maschine aushält.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>[FEV] Over speed fault threshold</source>
        <translation>[FEV] Abschaltgrenze Überdrehzahl</translation>
    </message>
    <message>
        <source>&lt;p&gt;Largest movement accepted while the drive finds the rotor angle; 0 switches the check off. Set it a little over one pole pair, 8 × [FBR] / [MPC] counts; less trips at a normal start.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Größte Bewegung, die zugelassen ist, während der Antrieb die Rotorlage sucht; 0 schaltet die Prüfung ab. Etwas mehr als ein Polpaar ist richtig, 8 × [FBR] / [MPC] Inkremente; weniger löst bei einem normalen Start aus.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>[FMO] Motion fault threshold</source>
        <translation>[FMO] Abschaltgrenze Bewegung</translation>
    </message>
    <message>
        <source>Recovery</source>
        <translation>Rückkehr</translation>
    </message>
    <message>
        <source>&lt;p&gt;Velocity at which the axis returns to its setpoint when it is enabled, or recovers from a fault, away from it. Keep it low, as this move begins without a command.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Geschwindigkeit, mit der die Achse zu ihrem Sollwert zurückkehrt, wenn sie abseits davon freigegeben wird oder sich von einer Störung erholt. Halten Sie sie niedrig, denn diese Bewegung beginnt ohne Befehl.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>[CRV] Recovery velocity limit</source>
        <translation>[CRV] Geschwindigkeitsgrenze Rückkehr</translation>
    </message>
    <message>
        <source> cnt/cycle/DIV</source>
        <translation> Ink/Zyklus/DIV</translation>
    </message>
</context>
<context>
    <name>FirmwareDesk</name>
    <message>
        <source>Open firmware file</source>
        <translation>Firmwaredatei öffnen</translation>
    </message>
    <message>
        <source>Firmware file (*.tdf)</source>
        <translation>Firmwaredatei (*.tdf)</translation>
    </message>
    <message>
        <source>Velbrin</source>
        <translation>Velbrin</translation>
    </message>
    <message>
        <source>A firmware upgrade is running.</source>
        <translation>Ein Firmware-Update läuft.</translation>
    </message>
    <message>
        <source>Closing now leaves the drive without working firmware. It then starts in firmware upgrade mode, where a new upgrade can rescue it.</source>
        <translation>Wer jetzt schließt, lässt den Antrieb ohne lauffähige Firmware zurück. Er startet dann im Firmware-Update-Modus, in dem ein neues Update ihn retten kann.</translation>
    </message>
    <message>
        <source>Keep upgrading</source>
        <translation>Update fortsetzen</translation>
    </message>
    <message>
        <source>Close anyway</source>
        <translation>Trotzdem schließen</translation>
    </message>
    <message>
        <source>Some recently changed parameters or faults require drive restart (Permanent stop state is on). If this repeats, check parameters and device status page.</source>
        <translation>Kürzlich geänderte Parameter oder Störungen erfordern einen Neustart des Antriebs (der Zustand „Dauerhalt“ ist gesetzt). Wiederholt sich das, prüfen Sie die Parameter und die Seite mit dem Gerätezustand.</translation>
    </message>
    <message>
        <source>Do you wish to restart device now?</source>
        <translation>Möchten Sie das Gerät jetzt neu starten?</translation>
    </message>
    <message>
        <source>Don&apos;t restart</source>
        <translation>Nicht neu starten</translation>
    </message>
    <message>
        <source>Restart drive now</source>
        <translation>Antrieb jetzt neu starten</translation>
    </message>
</context>
<context>
    <name>FirmwareFile</name>
    <message>
        <source>Can&apos;t open file</source>
        <translation>Die Datei lässt sich nicht öffnen</translation>
    </message>
    <message>
        <source>Unknown file type</source>
        <translation>Unbekannter Dateityp</translation>
    </message>
    <message>
        <source>Unsupported FW file version</source>
        <translation>Nicht unterstützte Version der Firmwaredatei</translation>
    </message>
    <message>
        <source>Selected firmware file not meant for the connected device type</source>
        <translation>Die gewählte Firmwaredatei ist nicht für den verbundenen Gerätetyp bestimmt</translation>
    </message>
    <message>
        <source>File corrupted</source>
        <translation>Datei beschädigt</translation>
    </message>
</context>
<context>
    <name>GainsPanel</name>
    <message>
        <source>Gains</source>
        <translation>Verstärkungen</translation>
    </message>
    <message>
        <source>&lt;p&gt;Gives the drive all changed settings, as the button under the pages does.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Gibt dem Antrieb alle geänderten Einstellungen, wie die Schaltfläche unter den Seiten.&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>GoalsPage</name>
    <message>
        <source>Goals: what the axis shall do</source>
        <translation>Ziele: was die Achse tun soll</translation>
    </message>
    <message>
        <source>Control mode and setpoint</source>
        <translation>Regelart und Sollwert</translation>
    </message>
    <message>
        <source>&lt;p&gt;What the setpoint commands: position, velocity or torque. Disable the drive before changing it, because the same setpoint number means something else in every mode.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Was der Sollwert vorgibt: Position, Geschwindigkeit oder Drehmoment. Sperren Sie den Antrieb, bevor Sie sie ändern, denn dieselbe Sollwertzahl bedeutet in jeder Regelart etwas anderes.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>[CM] Control mode</source>
        <translation>[CM] Regelart</translation>
    </message>
    <message>
        <source>Position control</source>
        <translation>Positionsregelung</translation>
    </message>
    <message>
        <source>Velocity control</source>
        <translation>Geschwindigkeitsregelung</translation>
    </message>
    <message>
        <source>Torque control</source>
        <translation>Drehmomentregelung</translation>
    </message>
    <message>
        <source>&lt;p&gt;Where the setpoint comes from; &quot;Serial only&quot; takes it from the bus and suits the Testing page. Try a physical input first with low limits, as the axis follows it as soon as the drive is enabled.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Woher der Sollwert kommt; „Nur seriell“ nimmt ihn vom Bus und passt zur Seite „Testen“. Erproben Sie einen physischen Eingang zuerst mit niedrigen Grenzen, denn die Achse folgt ihm, sobald der Antrieb freigegeben ist.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>[CRI] Setpoint input</source>
        <translation>[CRI] Sollwerteingang</translation>
    </message>
    <message>
        <source>Serial only</source>
        <translation>Nur seriell</translation>
    </message>
    <message>
        <source>Pulse and direction</source>
        <translation>Puls und Richtung</translation>
    </message>
    <message>
        <source>Quadrature (A and B)</source>
        <translation>Quadratur (A und B)</translation>
    </message>
    <message>
        <source>Analog input 1 (±10 V)</source>
        <translation>Analogeingang 1 (±10 V)</translation>
    </message>
    <message>
        <source>Analog input 2 (±10 V)</source>
        <translation>Analogeingang 2 (±10 V)</translation>
    </message>
    <message>
        <source>&lt;p&gt;Shifts the zero of an analog setpoint, in percent of full scale. Adjust it until the axis stands still at zero input; a wrong value makes it creep or push.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Verschiebt den Nullpunkt eines analogen Sollwerts, in Prozent des Endwerts. Stellen Sie ihn so ein, dass die Achse bei Eingang null steht; ein falscher Wert lässt sie kriechen oder drücken.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>[CAO] Setpoint offset nulling</source>
        <translation>[CAO] Nullabgleich des Sollwerts</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>&lt;p&gt;The setpoint is multiplied by this and divided by [DIV]; the quotient is the counts moved per setpoint unit. Raise it when the controller cannot send steps fast enough; too much makes every step coarse.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Der Sollwert wird hiermit multipliziert und durch [DIV] geteilt; der Quotient sind die Inkremente je Sollwerteinheit. Erhöhen Sie ihn, wenn die Steuerung Schritte nicht schnell genug senden kann; zu viel macht jeden Schritt grob.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>[MUL] Setpoint multiplier</source>
        <translation>[MUL] Sollwertmultiplikator</translation>
    </message>
    <message>
        <source>&lt;p&gt;Divides the setpoint, and is the resolution of velocities and accelerations, which count in 1/DIV counts per cycle. More is finer; after a change set [CVL], [CAL], [CRV], [HMV] and [HMA] anew.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Teilt den Sollwert und ist die Auflösung von Geschwindigkeiten und Beschleunigungen, die in 1/DIV Inkrementen je Zyklus zählen. Mehr ist feiner; stellen Sie nach einer Änderung [CVL], [CAL], [CRV], [HMV] und [HMA] neu ein.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>[DIV] Setpoint divider</source>
        <translation>[DIV] Sollwertteiler</translation>
    </message>
    <message>
        <source>&lt;p&gt;Counts that the axis moves for one setpoint unit, as a fraction and in percent.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Inkremente, um die sich die Achse je Sollwerteinheit bewegt, als Bruch und in Prozent.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Setpoint scaling factor:</source>
        <translation>Sollwertskalierung:</translation>
    </message>
    <message>
        <source>&lt;p&gt;Takes the sign of the setpoint from the direction input. For controllers that give a one-sided analog signal with a direction line; leave it off otherwise.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Nimmt das Vorzeichen des Sollwerts vom Richtungseingang. Für Steuerungen, die ein einseitiges Analogsignal mit Richtungsleitung liefern; sonst ausgeschaltet lassen.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>[CED] Enable direction input</source>
        <translation>[CED] Richtungseingang verwenden</translation>
    </message>
    <message>
        <source>&lt;p&gt;Smooths a coarse or jittery setpoint, which makes the motor quieter. It delays the motion by a few milliseconds, so leave it off where several axes must follow a contour.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Glättet einen groben oder zittrigen Sollwert, was den Motor leiser macht. Es verzögert die Bewegung um einige Millisekunden; lassen Sie es aus, wo mehrere Achsen einer Kontur folgen.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>[CIS] Setpoint smoothning</source>
        <translation>[CIS] Sollwertglättung</translation>
    </message>
    <message>
        <source>Axis and units</source>
        <translation>Achse und Einheiten</translation>
    </message>
    <message>
        <source>&lt;p&gt;Kind of axis and the unit in which machine values are shown beside the fields. It changes the display only, never the motion.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Art der Achse und Einheit, in der Maschinenwerte neben den Feldern stehen. Das ändert nur die Anzeige, nie die Bewegung.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>[AXT] Axis type &amp;&amp; units</source>
        <translation>[AXT] Achstyp &amp;&amp; Einheiten</translation>
    </message>
    <message>
        <source>Linear [mm]</source>
        <translation>Linear [mm]</translation>
    </message>
    <message>
        <source>Linear [µm]</source>
        <translation>Linear [µm]</translation>
    </message>
    <message>
        <source>Linear [inch]</source>
        <translation>Linear [Zoll]</translation>
    </message>
    <message>
        <source>Rotary [revolution]</source>
        <translation>Rotativ [Umdrehung]</translation>
    </message>
    <message>
        <source>Rotary [degrees]</source>
        <translation>Rotativ [Grad]</translation>
    </message>
    <message>
        <source>&lt;p&gt;Travel per motor revolution in the chosen unit: the lead of a screw, or 360 divided by the gear ratio. A wrong value shows wrong machine values but does not change the motion.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Weg je Motorumdrehung in der gewählten Einheit: die Steigung einer Spindel oder 360 geteilt durch die Übersetzung. Ein falscher Wert zeigt falsche Maschinenwerte, ändert aber die Bewegung nicht.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>[AXS] Axis scale</source>
        <translation>[AXS] Achsskalierung</translation>
    </message>
    <message>
        <source>&lt;p&gt;Swaps the positive direction of the whole axis. Use it when a well tuned axis runs the wrong way; it does not cure a runaway, see [FBI].&lt;/p&gt;</source>
        <translation>&lt;p&gt;Vertauscht die positive Richtung der ganzen Achse. Für eine gut abgestimmte Achse, die verkehrt herum läuft; ein Durchgehen behebt es nicht, siehe [FBI].&lt;/p&gt;</translation>
    </message>
    <message>
        <source>[AXI] Invert direction</source>
        <translation>[AXI] Richtung umkehren</translation>
    </message>
    <message>
        <source>Motion limits</source>
        <translation>Bewegungsgrenzen</translation>
    </message>
    <message>
        <source>&lt;p&gt;Highest velocity that is commanded; in velocity control also the velocity at full-scale setpoint. Keep it at least 10 % under [FEV]; too little makes the axis fall behind fast setpoints.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Höchste vorgegebene Geschwindigkeit; bei Geschwindigkeitsregelung auch die Geschwindigkeit bei vollem Sollwert. Halten Sie sie mindestens 10 % unter [FEV]; zu wenig lässt die Achse hinter schnellen Sollwerten zurück.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>[CVL] Velocity limit</source>
        <translation>[CVL] Geschwindigkeitsgrenze</translation>
    </message>
    <message>
        <source> cnt/cycle/DIV</source>
        <translation> Ink/Zyklus/DIV</translation>
    </message>
    <message>
        <source>&lt;p&gt;Highest acceleration that is commanded. Too much drives the current to its limit and overshoots, too little makes moves slow and the axis lag behind quick setpoints.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Höchste vorgegebene Beschleunigung. Zu viel treibt den Strom an seine Grenze und schwingt über, zu wenig macht Bewegungen langsam und lässt die Achse schnellen Sollwerten nachhinken.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>[CAL] Acceleration limit</source>
        <translation>[CAL] Beschleunigungsgrenze</translation>
    </message>
    <message>
        <source> cnt/cycle²/DIV</source>
        <translation> Ink/Zyklus²/DIV</translation>
    </message>
    <message>
        <source>&lt;p&gt;Deceleration when the drive stops by itself, as at a limit switch; 0 uses [CAL]. Too little lets the axis run far, too much can cause over voltage.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Verzögerung, wenn der Antrieb von selbst anhält, etwa an einem Endschalter; 0 nimmt [CAL]. Zu wenig lässt die Achse weit laufen, zu viel kann Überspannung auslösen.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>[CSD] Stop deceleration limit</source>
        <translation>[CSD] Verzögerung beim Halt</translation>
    </message>
    <message>
        <source>Enabling and bus</source>
        <translation>Freigabe und Bus</translation>
    </message>
    <message>
        <source>&lt;p&gt;The drive starts only after a software enable command, besides the enable input. Leave it on while setting up; switch it off for a machine that must start without a PC.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Der Antrieb startet nur nach einem Software-Freigabebefehl, zusätzlich zum Freigabeeingang. Lassen Sie es während der Inbetriebnahme ein; schalten Sie es aus für eine Maschine, die ohne PC starten muss.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>[CEN] Require software enable</source>
        <translation>[CEN] Software-Freigabe erforderlich</translation>
    </message>
    <message>
        <source>&lt;p&gt;The enable input must keep pulsing, so that a hung controller stops the drive. Without a controller that sends these pulses the drive never enables.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Der Freigabeeingang muss ständig pulsen, damit eine hängende Steuerung den Antrieb anhält. Ohne eine Steuerung, die diese Pulse sendet, lässt sich der Antrieb nie freigeben.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>[CEP] Require pulsing on enable input</source>
        <translation>[CEP] Pulse am Freigabeeingang erforderlich</translation>
    </message>
    <message>
        <source>&lt;p&gt;Added to the address that is set on the drive itself, from the next restart on. Use it when two drives have the same address; the bus search finds addresses 1 to 20 only.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Wird ab dem nächsten Neustart zu der Adresse addiert, die am Antrieb selbst eingestellt ist. Für zwei Antriebe mit gleicher Adresse; die Bussuche findet nur die Adressen 1 bis 20.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>[ZBO] Bus address offset</source>
        <translation>[ZBO] Versatz der Busadresse</translation>
    </message>
</context>
<context>
    <name>HelpBrowser</name>
    <message>
        <source>Save as PDF</source>
        <translation>Als PDF speichern</translation>
    </message>
    <message>
        <source>Loading of online documentation Wiki failed (no internet?), displaying an offline copy. It is advised to check out latest documentation at &lt;a&gt;%1&lt;/a&gt;.</source>
        <translation>Die Online-Dokumentation (Wiki) konnte nicht geladen werden (kein Internet?), angezeigt wird eine Offline-Kopie. Die neueste Dokumentation finden Sie unter &lt;a&gt;%1&lt;/a&gt;.</translation>
    </message>
</context>
<context>
    <name>HelpView</name>
    <message>
        <source>its program %1 is missing</source>
        <translation>ihr Programm %1 fehlt</translation>
    </message>
    <message>
        <source>this system does not allow its sandbox (user name spaces)</source>
        <translation>dieses System erlaubt ihre Sandbox nicht (User-Namespaces)</translation>
    </message>
    <message>
        <source>it is switched off</source>
        <translation>sie ist ausgeschaltet</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Help and plots cannot be shown&lt;/h3&gt;The browser engine cannot start: %1.</source>
        <translation>&lt;h3&gt;Hilfe und Diagramme können nicht gezeigt werden&lt;/h3&gt;Die Browser-Engine kann nicht starten: %1.</translation>
    </message>
    <message>
        <source>The picture of the graphs was given up: the browser engine was started again</source>
        <translation>Das Bild der Diagramme wurde aufgegeben: Die Browser-Engine wurde neu gestartet</translation>
    </message>
    <message>
        <source>it closed</source>
        <translation>sie hat sich beendet</translation>
    </message>
    <message>
        <source>status %1</source>
        <translation>Status %1</translation>
    </message>
    <message>
        <source>&lt;h3&gt;The view has stopped&lt;/h3&gt;The browser engine behind help and plots has ended unexpectedly (%1). The connection to the drive is not affected.&lt;p&gt;&lt;a href=&quot;restart:&quot;&gt;Start it again&lt;/a&gt;&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Die Ansicht ist stehen geblieben&lt;/h3&gt;Die Browser-Engine hinter Hilfe und Diagrammen hat sich unerwartet beendet (%1). Die Verbindung zum Antrieb ist davon nicht betroffen.&lt;p&gt;&lt;a href=&quot;restart:&quot;&gt;Neu starten&lt;/a&gt;&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&lt;p&gt;The last capture can be saved as text: &lt;a href=&quot;tdext://exportpdf&quot;&gt;Save as file&lt;/a&gt;&lt;/p&gt;</source>
        <translation>&lt;p&gt;Die letzte Aufzeichnung kann als Text gespeichert werden: &lt;a href=&quot;tdext://exportpdf&quot;&gt;Als Datei speichern&lt;/a&gt;&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Error writing graphs to file %1: %2</source>
        <translation>Fehler beim Schreiben der Diagramme in die Datei %1: %2</translation>
    </message>
    <message>
        <source>no plot is shown to make a picture of</source>
        <translation>es ist kein Diagramm zu sehen, von dem ein Bild gemacht werden könnte</translation>
    </message>
    <message>
        <source>the browser engine has ended unexpectedly</source>
        <translation>die Browser-Engine hat sich unerwartet beendet</translation>
    </message>
</context>
<context>
    <name>MW</name>
    <message>
        <source>Velbrin</source>
        <translation>Velbrin</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>&lt;p&gt;Sends the settings of all pages to the drive. They stay in force until it is switched off; &quot;Save settings on drive non-volatile memory&quot; on the Connect page keeps them.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Sendet die Einstellungen aller Seiten an den Antrieb. Sie gelten, bis er ausgeschaltet wird; „Einstellungen dauerhaft im Antrieb speichern“ auf der Seite „Verbinden“ erhält sie.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Apply settings [Alt+A]</source>
        <translation>Einstellungen anwenden [Alt+A]</translation>
    </message>
    <message>
        <source>Offline copy of the documentation. The online documentation may be newer.</source>
        <translation>Offline-Kopie der Dokumentation. Die Online-Dokumentation kann neuer sein.</translation>
    </message>
    <message>
        <source>Help and graphs</source>
        <translation>Hilfe und Diagramme</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>Da&amp;tei</translation>
    </message>
    <message>
        <source>Tool bar</source>
        <translation>Werkzeugleiste</translation>
    </message>
    <message>
        <source>Parameter overrides</source>
        <translation>Parameter überschreiben</translation>
    </message>
    <message>
        <source>Ctrl+P</source>
        <translation>Ctrl+P</translation>
    </message>
    <message>
        <source>Not while the drive is in firmware upgrade mode</source>
        <translation>Nicht, während der Antrieb im Firmware-Update-Modus ist</translation>
    </message>
    <message>
        <source>not on this model</source>
        <translation>nicht bei diesem Modell</translation>
    </message>
    <message>
        <source>This info updated only after Connect</source>
        <translation>Diese Angaben werden nur beim Verbinden aktualisiert</translation>
    </message>
    <message>
        <source>Value %1</source>
        <translation>Wert %1</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;b&gt;Warning:&lt;/b&gt; operating Torva under 70 VDC may reduce it&apos;s short circuit protection sensitivity making it vulnerable to permanent hardware damage in the case of short circuit.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;b&gt;Warnung:&lt;/b&gt; Wird Torva unter 70 VDC betrieben, kann sein Kurzschlussschutz unempfindlicher werden, sodass ein Kurzschluss die Hardware dauerhaft beschädigen kann.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;b&gt;Warning:&lt;/b&gt; operating Keta under 20 VDC may reduce it&apos;s short circuit protection sensitivity making it vulnerable to permanent hardware damage in the case of short circuit.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;b&gt;Warnung:&lt;/b&gt; Wird Keta unter 20 VDC betrieben, kann sein Kurzschlussschutz unempfindlicher werden, sodass ein Kurzschluss die Hardware dauerhaft beschädigen kann.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Homing hard stop threshold [HMH] is near or above position tracking error threshold [FPT]. This means that tracking error fault might occur before hard stop detection. Recommendation: reduce HMH or increase FPT.</source>
        <translation>Die Festanschlagschwelle der Referenzfahrt [HMH] liegt nahe bei oder über der Schleppfehlergrenze Position [FPT]. Der Schleppfehler kann also auslösen, bevor der Festanschlag erkannt wird. Empfehlung: HMH verringern oder FPT erhöhen.</translation>
    </message>
    <message>
        <source>Over speed fault threshold [FEV] is near or less than Velocity limit [CVL]. This means that over speed fault might occur during normal operation. Recommendation: reduce CVL or increase FEV.</source>
        <translation>Die Abschaltgrenze Überdrehzahl [FEV] liegt nahe bei oder unter der Geschwindigkeitsgrenze [CVL]. Die Störung Überdrehzahl kann also im normalen Betrieb auslösen. Empfehlung: CVL verringern oder FEV erhöhen.</translation>
    </message>
    <message>
        <source>Parameter sanity check warnings:&lt;ul&gt;%1&lt;/ul&gt;</source>
        <translation>Warnungen der Parameterprüfung:&lt;ul&gt;%1&lt;/ul&gt;</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>µm</source>
        <translation>µm</translation>
    </message>
    <message>
        <source>inch</source>
        <translation>Zoll</translation>
    </message>
    <message>
        <source>inches</source>
        <translation>Zoll</translation>
    </message>
    <message>
        <source>revolution</source>
        <translation>Umdrehung</translation>
    </message>
    <message>
        <source>revolutions</source>
        <translation>Umdrehungen</translation>
    </message>
    <message>
        <source>degree</source>
        <translation>Grad</translation>
    </message>
    <message>
        <source>degrees</source>
        <translation>Grad</translation>
    </message>
    <message>
        <source>error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>no mode</source>
        <translation>keine Regelart</translation>
    </message>
    <message>
        <source>Setpoint scaling factor:
%1/%2=%3%</source>
        <translation>Sollwertskalierung:
%1/%2=%3%</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Nicht verbunden</translation>
    </message>
    <message>
        <source>Program started</source>
        <translation>Programm gestartet</translation>
    </message>
    <message>
        <source>Restarting device</source>
        <translation>Gerät startet neu</translation>
    </message>
    <message>
        <source>The graphs are being written; the window closes when that is done</source>
        <translation>Die Diagramme werden geschrieben; danach schließt das Fenster</translation>
    </message>
    <message>
        <source>Set Abs 1</source>
        <translation>Absolut 1</translation>
    </message>
    <message>
        <source>Set Inc 1</source>
        <translation>Relativ 1</translation>
    </message>
    <message>
        <source>Set Abs 2</source>
        <translation>Absolut 2</translation>
    </message>
    <message>
        <source>Set Inc 2</source>
        <translation>Relativ 2</translation>
    </message>
    <message>
        <source>Communication interface device</source>
        <translation>Schnittstellengerät</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Meldungen</translation>
    </message>
    <message>
        <source>Help [F1]</source>
        <translation>Hilfe [F1]</translation>
    </message>
    <message>
        <source>Searching devices: address %1 of %2</source>
        <translation>Suche Geräte: Adresse %1 von %2</translation>
    </message>
    <message>
        <source>Drives found: %1</source>
        <translation>Gefundene Antriebe: %1</translation>
    </message>
    <message>
        <source>Welcome!</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Verbinden</translation>
    </message>
    <message>
        <source>Goals</source>
        <translation>Ziele</translation>
    </message>
    <message>
        <source>Machine</source>
        <translation>Maschine</translation>
    </message>
    <message>
        <source>Tuning</source>
        <translation>Abstimmen</translation>
    </message>
    <message>
        <source>Fault limits</source>
        <translation>Grenzen</translation>
    </message>
    <message>
        <source>Testing</source>
        <translation>Testen</translation>
    </message>
    <message>
        <source>Zetabus V2 adapter</source>
        <translation>Zetabus-V2-Adapter</translation>
    </message>
    <message>
        <source>Possibly Zetabus V2 adapter</source>
        <translation>Vermutlich Zetabus-V2-Adapter</translation>
    </message>
    <message>
        <source>Virtual drive</source>
        <translation>Virtueller Antrieb</translation>
    </message>
</context>
<context>
    <name>MachinePage</name>
    <message>
        <source>Machine: motor, feedback, homing and brake</source>
        <translation>Maschine: Motor, Geber, Referenzfahrt und Bremse</translation>
    </message>
    <message>
        <source>Motor</source>
        <translation>Motor</translation>
    </message>
    <message>
        <source>&lt;p&gt;Kind of motor connected. A wrong type gives no torque, rough running or faults at the first enable.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Art des angeschlossenen Motors. Ein falscher Typ gibt kein Drehmoment, rauen Lauf oder Störungen bei der ersten Freigabe.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>[MT] Motor type</source>
        <translation>[MT] Motortyp</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keiner</translation>
    </message>
    <message>
        <source>Brush DC</source>
        <translation>Bürsten-DC</translation>
    </message>
    <message>
        <source>2 phase AC or BLDC</source>
        <translation>2-Phasen-AC oder BLDC</translation>
    </message>
    <message>
        <source>3 phase AC or BLDC</source>
        <translation>3-Phasen-AC oder BLDC</translation>
    </message>
    <message>
        <source>Stepping motor</source>
        <translation>Schrittmotor</translation>
    </message>
    <message>
        <source>A stepping motor needs no pole count, Hall sensors or thermal time constant: it moves with [MMC] and rests with [MCC].</source>
        <translation>Ein Schrittmotor braucht weder Polzahl noch Hallsensoren noch thermische Zeitkonstante: Er bewegt sich mit [MMC] und ruht mit [MCC].</translation>
    </message>
    <message>
        <source>&lt;p&gt;Number of magnet poles, twice the pole pairs; take it from the motor&apos;s data sheet. A wrong count gives weak torque, cogging or a runaway.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Zahl der Magnetpole, das Doppelte der Polpaare; sie steht im Datenblatt des Motors. Eine falsche Zahl gibt schwaches Drehmoment, Rastmomente oder ein Durchgehen.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>[MPC] Pole count</source>
        <translation>[MPC] Polzahl</translation>
    </message>
    <message>
        <source> poles</source>
        <translation> Pole</translation>
    </message>
    <message>
        <source>an even number of poles</source>
        <translation>eine gerade Zahl von Polen</translation>
    </message>
    <message>
        <source>&lt;p&gt;Resistance between two motor wires; measure it or take it from the data sheet. Too high a value makes the torque control noisy, too low makes it slow.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Widerstand zwischen zwei Motorleitungen; messen Sie ihn oder nehmen Sie ihn aus dem Datenblatt. Ein zu hoher Wert macht die Drehmomentregelung laut, ein zu niedriger langsam.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>[MR] Motor resistance</source>
        <translation>[MR] Motorwiderstand</translation>
    </message>
    <message>
        <source> Ω</source>
        <translation> Ω</translation>
    </message>
    <message>
        <source>&lt;p&gt;Inductance between two motor wires; measure it or take it from the data sheet. Too high a value makes the torque control sing or trip over current, too low makes it slow.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Induktivität zwischen zwei Motorleitungen; messen Sie sie oder nehmen Sie sie aus dem Datenblatt. Ein zu hoher Wert lässt die Drehmomentregelung pfeifen oder Überstrom auslösen, ein zu niedriger macht sie langsam.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>[ML] Motor inductance</source>
        <translation>[ML] Motorinduktivität</translation>
    </message>
    <message>
        <source> mH</source>
        <translation> mH</translation>
    </message>
    <message>
        <source>&lt;p&gt;Measures the connected motor and fills [MR] and [ML]. The motor gets current for some seconds; the drive must be disabled.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Misst den angeschlossenen Motor und füllt [MR] und [ML]. Der Motor wird einige Sekunden lang bestromt; der Antrieb muss gesperrt sein.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Measure resistance &amp;&amp; inductance</source>
        <translation>Widerstand &amp;&amp; Induktivität messen</translation>
    </message>
    <message>
        <source>&lt;p&gt;Current (peak of sine) that the motor stands without end: rated RMS current × 1.41. Too much overheats the motor, too little makes it weak after a while.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Strom (Scheitelwert), den der Motor auf Dauer aushält: Nennstrom (Effektivwert) × 1,41. Zu viel überhitzt den Motor, zu wenig macht ihn nach einer Weile schwach.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>[MCC] Continuous current</source>
        <translation>[MCC] Dauerstrom</translation>
    </message>
    <message>
        <source> A</source>
        <translation> A</translation>
    </message>
    <message>
        <source>&lt;p&gt;Largest short-time motor current (peak of sine), and the full-scale setpoint in torque control. Too much can damage the motor, too little limits acceleration.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Größter kurzzeitiger Motorstrom (Scheitelwert) und voller Sollwert bei Drehmomentregelung. Zu viel kann den Motor beschädigen, zu wenig begrenzt die Beschleunigung.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>[MMC] Peak current</source>
        <translation>[MMC] Spitzenstrom</translation>
    </message>
    <message>
        <source>&lt;p&gt;Time in which the motor reaches 63 % of its final temperature; it sets how long the current may stay above [MCC]. Too long overheats the motor, too short limits the current early.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Zeit, in der der Motor 63 % seiner Endtemperatur erreicht; sie bestimmt, wie lange der Strom über [MCC] bleiben darf. Zu lang überhitzt den Motor, zu kurz begrenzt den Strom früh.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>[MTC] Thermal time constant</source>
        <translation>[MTC] Thermische Zeitkonstante</translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source>until 63&#xa0;% of its final temperature</source>
        <translation>bis 63&#xa0;% der Endtemperatur</translation>
    </message>
    <message>
        <source>&lt;p&gt;Highest speed that motor and machine allow, used for choosing a fitting [DIV]. It limits nothing by itself; set [CVL] for that.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Höchste Drehzahl, die Motor und Maschine erlauben; dient der Wahl eines passenden [DIV]. Sie begrenzt selbst nichts; dafür gibt es [CVL].&lt;/p&gt;</translation>
    </message>
    <message>
        <source>[MMS] Maximum speed</source>
        <translation>[MMS] Höchste Drehzahl</translation>
    </message>
    <message>
        <source> rpm</source>
        <translation> 1/min</translation>
    </message>
    <message>
        <source>Feedback</source>
        <translation>Geber</translation>
    </message>
    <message>
        <source>&lt;p&gt;Sensor that measures the position. Choose what is wired; a wrong device gives a Feedback fault or no motion.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Sensor, der die Position misst. Wählen Sie, was verdrahtet ist; ein falscher gibt eine Geberstörung oder keine Bewegung.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>[FBD] Position feedback device</source>
        <translation>[FBD] Positionsgeber</translation>
    </message>
    <message>
        <source>Quadrature encoder</source>
        <translation>Inkrementalgeber (Quadratur)</translation>
    </message>
    <message>
        <source>SinCos encoder, 16x interpolation</source>
        <translation>SinCos-Geber, 16-fach interpoliert</translation>
    </message>
    <message>
        <source>SinCos encoder, 64x interpolation</source>
        <translation>SinCos-Geber, 64-fach interpoliert</translation>
    </message>
    <message>
        <source>SinCos encoder, 256x interpolation</source>
        <translation>SinCos-Geber, 256-fach interpoliert</translation>
    </message>
    <message>
        <source>Resolver</source>
        <translation>Resolver</translation>
    </message>
    <message>
        <source>Serial encoder (BiSS-C)</source>
        <translation>Serieller Geber (BiSS-C)</translation>
    </message>
    <message>
        <source>&lt;p&gt;Lines per revolution; a revolution is four times as many counts. For other sensors enter counts per revolution / 4; a wrong value gives wrong speeds and, on AC motors, weak torque or a runaway.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Striche je Umdrehung; eine Umdrehung hat viermal so viele Inkremente. Für andere Geber: Inkremente je Umdrehung / 4; ein falscher Wert gibt falsche Geschwindigkeiten und bei AC-Motoren schwaches Drehmoment oder ein Durchgehen.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>[FBR] Feedback device resolution</source>
        <translation>[FBR] Auflösung des Gebers</translation>
    </message>
    <message>
        <source> lines/rev</source>
        <translation> Striche/U</translation>
    </message>
    <message>
        <source>1 line = 4 counts</source>
        <translation>1 Strich = 4 Inkremente</translation>
    </message>
    <message>
        <source>&lt;p&gt;Reverses the counting direction of the position sensor. Change it when the motor runs away at the first enable; set wrongly, the axis is never stable.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Kehrt die Zählrichtung des Positionsgebers um. Ändern Sie dies, wenn der Motor bei der ersten Freigabe durchgeht; falsch gesetzt, ist die Achse nie stabil.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>[FBI] Invert feedback direction</source>
        <translation>[FBI] Zählrichtung umkehren</translation>
    </message>
    <message>
        <source>&lt;p&gt;Hall sensors tell the rotor angle at power-on, so that no searching movement is needed. Try the other polarity if the motor jerks or an Init fault comes at the first enable.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Hallsensoren geben die Rotorlage schon beim Einschalten, sodass keine Suchbewegung nötig ist. Versuchen Sie die andere Polarität, wenn der Motor ruckt oder bei der ersten Freigabe eine Initialisierungsstörung kommt.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>[FBH] Hall sensors</source>
        <translation>[FBH] Hallsensoren</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Enabled (non-inverted)</source>
        <translation>Ein (nicht invertiert)</translation>
    </message>
    <message>
        <source>Enabled (inverted)</source>
        <translation>Ein (invertiert)</translation>
    </message>
    <message>
        <source>&lt;p&gt;Second sensor, on the motor shaft, when the position sensor sits on the load. Leave it at the first choice with one sensor.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Zweiter Geber, auf der Motorwelle, wenn der Positionsgeber an der Last sitzt. Bei nur einem Geber die erste Auswahl lassen.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>[FB2D] Velocity feedback device</source>
        <translation>[FB2D] Geschwindigkeitsgeber</translation>
    </message>
    <message>
        <source>Same as position feedback device</source>
        <translation>Wie Positionsgeber</translation>
    </message>
    <message>
        <source>&lt;p&gt;Lines per motor revolution of the second sensor. A wrong value scales every velocity and detunes the loops.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Striche je Motorumdrehung des zweiten Gebers. Ein falscher Wert skaliert jede Geschwindigkeit und verstimmt die Regler.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>[FB2R] Velocity feedback resolution</source>
        <translation>[FB2R] Auflösung des Geschw.-Gebers</translation>
    </message>
    <message>
        <source>&lt;p&gt;Reverses the counting direction of the second sensor. Change it when the axis runs away only with two sensors.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Kehrt die Zählrichtung des zweiten Gebers um. Ändern Sie dies, wenn die Achse nur mit zwei Gebern durchgeht.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>[FB2I] Invert velocity feedback direction</source>
        <translation>[FB2I] Zählrichtung Geschw.-Geber umkehren</translation>
    </message>
    <message>
        <source>Inverted</source>
        <translation>Umgekehrt</translation>
    </message>
    <message>
        <source>Homing and soft limits</source>
        <translation>Referenzfahrt und Software-Endlagen</translation>
    </message>
    <message>
        <source>&lt;p&gt;Whether and when the axis looks for its home position. With power-on homing it moves as soon as it is enabled.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Ob und wann die Achse ihre Referenzposition sucht. Mit Referenzfahrt beim Einschalten bewegt sie sich, sobald sie freigegeben ist.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>[HME] Homing enabled</source>
        <translation>[HME] Referenzfahrt</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Ausgeschaltet</translation>
    </message>
    <message>
        <source>Homing on external command</source>
        <translation>Auf externen Befehl</translation>
    </message>
    <message>
        <source>Homing on power-on</source>
        <translation>Beim Einschalten</translation>
    </message>
    <message>
        <source>&lt;p&gt;Level at which the home switch counts as reached. Wrong polarity ends the search at once or runs past the switch.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Pegel, bei dem der Referenzschalter als erreicht gilt. Falsche Polarität beendet die Suche sofort oder fährt am Schalter vorbei.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>[HMS] Home switch polarity</source>
        <translation>[HMS] Polarität des Referenzschalters</translation>
    </message>
    <message>
        <source>No home switch search</source>
        <translation>Keine Suche nach dem Schalter</translation>
    </message>
    <message>
        <source>Negative</source>
        <translation>Negativ</translation>
    </message>
    <message>
        <source>Positive</source>
        <translation>Positiv</translation>
    </message>
    <message>
        <source>&lt;p&gt;Goes on to the encoder&apos;s index pulse, which repeats far better than a switch or a stop. Search away from the stop; needs an encoder with index.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Fährt weiter zum Indeximpuls des Gebers, der sich viel genauer wiederholt als ein Schalter oder Anschlag. Suchen Sie vom Anschlag weg; braucht einen Geber mit Indexspur.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>[HMI] Index pulse search</source>
        <translation>[HMI] Suche nach dem Indeximpuls</translation>
    </message>
    <message>
        <source>No index pulse search</source>
        <translation>Keine Indexsuche</translation>
    </message>
    <message>
        <source>Negative direction</source>
        <translation>Negative Richtung</translation>
    </message>
    <message>
        <source>Positive direction</source>
        <translation>Positive Richtung</translation>
    </message>
    <message>
        <source>&lt;p&gt;Velocity of the search; a negative value searches in negative direction. Too fast repeats badly and hits the stop hard, too slow only takes time.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Geschwindigkeit der Suche; ein negativer Wert sucht in negativer Richtung. Zu schnell wiederholt schlecht und trifft den Anschlag hart, zu langsam kostet nur Zeit.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>[HMV] Homing velocity</source>
        <translation>[HMV] Geschwindigkeit der Referenzfahrt</translation>
    </message>
    <message>
        <source> cnt/cycle/DIV</source>
        <translation> Ink/Zyklus/DIV</translation>
    </message>
    <message>
        <source>&lt;p&gt;Acceleration while homing. Too much shakes the axis and can look like a hard stop, too little overruns the switch.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Beschleunigung bei der Referenzfahrt. Zu viel erschüttert die Achse und kann wie ein Festanschlag aussehen, zu wenig überfährt den Schalter.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>[HMA] Homing acceleration</source>
        <translation>[HMA] Beschleunigung der Referenzfahrt</translation>
    </message>
    <message>
        <source> cnt/cycle²/DIV</source>
        <translation> Ink/Zyklus²/DIV</translation>
    </message>
    <message>
        <source>&lt;p&gt;Tracking error at which homing takes the axis to stand at a hard stop; 0 switches this off. Keep it under 3/4 of [FPT]; too small stops at friction, too large presses hard.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Schleppfehler, bei dem die Referenzfahrt annimmt, dass die Achse am Festanschlag steht; 0 schaltet dies ab. Halten Sie ihn unter 3/4 von [FPT]; zu klein hält an Reibung, zu groß drückt hart.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>[HMH] Homing hard stop threshold</source>
        <translation>[HMH] Festanschlagschwelle</translation>
    </message>
    <message>
        <source> counts</source>
        <translation> Ink</translation>
    </message>
    <message>
        <source>&lt;p&gt;Largest motor current while homing, so that the axis only leans on a hard stop. Too much harms the mechanics, too little stalls on friction before the stop.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Größter Motorstrom bei der Referenzfahrt, damit sich die Achse an einen Festanschlag nur anlehnt. Zu viel schadet der Mechanik, zu wenig bleibt schon vor dem Anschlag an Reibung stehen.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>[HMT] Homing current limit</source>
        <translation>[HMT] Stromgrenze der Referenzfahrt</translation>
    </message>
    <message>
        <source>&lt;p&gt;Distance moved after the home point was found, before the position becomes zero. Use it to leave the switch or stop and to put zero where the machine needs it.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Weg, der nach dem Finden des Referenzpunkts gefahren wird, bevor die Position null wird. So verlassen Sie Schalter oder Anschlag und legen die Null dorthin, wo die Maschine sie braucht.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>[HMF] Homing offset move</source>
        <translation>[HMF] Weg nach dem Referenzpunkt</translation>
    </message>
    <message>
        <source> setpoint units</source>
        <translation> Sollwerteinheiten</translation>
    </message>
    <message>
        <source>&lt;p&gt;Makes the offset move with [CVL] and [CAL] instead of homing velocity. Saves time with long offsets; leave it off near obstacles.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Fährt den Weg nach dem Referenzpunkt mit [CVL] und [CAL] statt mit der Geschwindigkeit der Referenzfahrt. Spart Zeit bei langen Wegen; nahe an Hindernissen ausgeschaltet lassen.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>[HFO] Full speed offset move</source>
        <translation>[HFO] Diesen Weg mit voller Geschwindigkeit</translation>
    </message>
    <message>
        <source>&lt;p&gt;Lowest position setpoint accepted after homing. Equal low and high limits switch the check off; too narrow stops good motion with a Motion range fault.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Niedrigster Positionssollwert, der nach der Referenzfahrt angenommen wird. Gleiche untere und obere Endlage schalten die Prüfung ab; zu eng hält gute Bewegung mit der Störung Bewegungsbereich an.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>[HLL] Soft low limit</source>
        <translation>[HLL] Untere Software-Endlage</translation>
    </message>
    <message>
        <source>&lt;p&gt;Highest position setpoint accepted after homing. Leave some travel between it and the mechanical end so that the axis can stop.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Höchster Positionssollwert, der nach der Referenzfahrt angenommen wird. Lassen Sie bis zum mechanischen Ende etwas Weg, damit die Achse anhalten kann.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>[HHL] Soft high limit</source>
        <translation>[HHL] Obere Software-Endlage</translation>
    </message>
    <message>
        <source>&lt;p&gt;Starts the homing sequence: the axis moves. The drive must be enabled.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Startet die Referenzfahrt: Die Achse bewegt sich. Der Antrieb muss freigegeben sein.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Start homing now</source>
        <translation>Referenzfahrt jetzt starten</translation>
    </message>
    <message>
        <source>&lt;p&gt;Ends a running homing sequence; the axis stops.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Beendet eine laufende Referenzfahrt; die Achse hält an.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Abort homing</source>
        <translation>Referenzfahrt abbrechen</translation>
    </message>
    <message>
        <source>Holding brake</source>
        <translation>Haltebremse</translation>
    </message>
    <message>
        <source>&lt;p&gt;Time from switching the motor on to opening the brake, so that the motor holds the load first. Too short lets a hanging load drop, too long delays every start.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Zeit vom Einschalten des Motors bis zum Lüften der Bremse, damit zuerst der Motor die Last hält. Zu kurz lässt eine hängende Last absacken, zu lang verzögert jeden Start.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>[BER] Brake release delay</source>
        <translation>[BER] Verzögerung beim Lüften</translation>
    </message>
    <message>
        <source>&lt;p&gt;Time that the motor keeps holding after the brake was told to close. Too short lets a hanging load drop at every stop; set it a little over the brake&apos;s closing time.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Zeit, die der Motor noch hält, nachdem die Bremse den Befehl zum Schließen bekam. Zu kurz lässt eine hängende Last bei jedem Halt absacken; etwas mehr als die Schließzeit der Bremse ist richtig.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>[BED] Brake engage delay</source>
        <translation>[BED] Verzögerung beim Schließen</translation>
    </message>
    <message>
        <source>&lt;p&gt;Time given to the axis to stop before the brake closes when the drive is disabled. Too short wears the brake, too long lets the axis run on.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Zeit, die die Achse zum Anhalten bekommt, bevor die Bremse beim Sperren des Antriebs schließt. Zu kurz verschleißt die Bremse, zu lang lässt die Achse nachlaufen.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>[BDD] Brake deceleration delay</source>
        <translation>[BDD] Auslaufzeit vor dem Schließen</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>&lt;p&gt;The brake keeps the axis still while the drive finds the rotor angle at power-on. For hanging loads with a brake and no Hall sensors; without a brake it does nothing.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Die Bremse hält die Achse still, während der Antrieb beim Einschalten die Rotorlage sucht. Für hängende Lasten mit Bremse und ohne Hallsensoren; ohne Bremse wirkt es nicht.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>[BAP] Mech brake assisted phasing</source>
        <translation>[BAP] Rotorlagesuche mit Haltebremse</translation>
    </message>
    <message>
        <source>Limit switches</source>
        <translation>Endschalter</translation>
    </message>
    <message>
        <source>&lt;p&gt;What the drive does when a limit switch opens. Switch it on once both switches are wired and proven; unwired switches then block all motion.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Was der Antrieb tut, wenn ein Endschalter öffnet. Schalten Sie dies ein, sobald beide Schalter verdrahtet und geprüft sind; unverdrahtete Schalter verhindern dann jede Bewegung.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>[LSF] Limit switch function</source>
        <translation>[LSF] Endschalterfunktion</translation>
    </message>
    <message>
        <source>Not in use</source>
        <translation>Nicht benutzt</translation>
    </message>
    <message>
        <source>Stop and hold</source>
        <translation>Anhalten und Position halten</translation>
    </message>
    <message>
        <source>Stop and disable (fault)</source>
        <translation>Anhalten und sperren (Störung)</translation>
    </message>
    <message>
        <source>&lt;p&gt;Whether motion is allowed while current flows in the enable and limit inputs or while it does not. Prefer normally closed, as a broken wire then stops the axis.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Ob Bewegung erlaubt ist, während in Freigabe- und Endschaltereingängen Strom fließt oder während keiner fließt. Bevorzugen Sie Öffner: Ein Drahtbruch hält die Achse dann an.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>[CEI] Enable and limit input logic</source>
        <translation>[CEI] Logik von Freigabe und Endschaltern</translation>
    </message>
    <message>
        <source>Normally closed</source>
        <translation>Öffner</translation>
    </message>
    <message>
        <source>Normally open</source>
        <translation>Schließer</translation>
    </message>
</context>
<context>
    <name>MakerNews</name>
    <message>
        <source>The maker&apos;s server asks for an end of this connection. The drive is enabled, so it stays until the drive is disabled.</source>
        <translation>Der Server des Herstellers bittet um das Ende dieser Verbindung. Der Antrieb ist freigegeben, also bleibt sie bestehen, bis er gesperrt wird.</translation>
    </message>
</context>
<context>
    <name>NodeDialog</name>
    <message>
        <source>Something at bus address %1 whose answers are damaged</source>
        <translation>Etwas unter Busadresse %1, dessen Antworten beschädigt sind</translation>
    </message>
    <message>
        <source>%1 at bus address %2 in firmware upgrade mode</source>
        <translation>%1 unter Busadresse %2 im Firmware-Update-Modus</translation>
    </message>
    <message>
        <source>%1 at bus address %2</source>
        <translation>%1 unter Busadresse %2</translation>
    </message>
    <message>
        <source>Search again</source>
        <translation>Erneut suchen</translation>
    </message>
    <message>
        <source>No drive answered. Check that:&lt;ul&gt;&lt;li&gt;the drive has its supply, also the logic supply if it has one&lt;/li&gt;&lt;li&gt;the bus cable is plugged in at both ends, and the last drive has its terminator&lt;/li&gt;&lt;li&gt;the chosen port is that of the Zetabus adapter&lt;/li&gt;&lt;li&gt;no two drives are set to the same address, and each address is 1 to 20&lt;/li&gt;&lt;/ul&gt;</source>
        <translation>Kein Antrieb hat geantwortet. Prüfen Sie:&lt;ul&gt;&lt;li&gt;Hat der Antrieb seine Versorgung, auch die Logikversorgung, falls er eine hat?&lt;/li&gt;&lt;li&gt;Ist das Buskabel an beiden Enden eingesteckt, und hat der letzte Antrieb seinen Abschluss?&lt;/li&gt;&lt;li&gt;Ist die gewählte Schnittstelle die des Zetabus-Adapters?&lt;/li&gt;&lt;li&gt;Haben keine zwei Antriebe dieselbe Adresse, und liegt jede Adresse zwischen 1 und 20?&lt;/li&gt;&lt;/ul&gt;</translation>
    </message>
</context>
<context>
    <name>NumberField</name>
    <message>
        <source>This drive: %1 to %2</source>
        <translation>Dieser Antrieb: %1 bis %2</translation>
    </message>
    <message>
        <source>%1 is not a whole number; it stays at %2</source>
        <translation>%1 ist keine ganze Zahl; es bleibt bei %2</translation>
    </message>
    <message>
        <source>%1 has more than %2 decimals; it stays at %3</source>
        <translation>%1 hat mehr als %2 Nachkommastellen; es bleibt bei %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number; it stays at %2</source>
        <translation>„%1“ ist keine Zahl; es bleibt bei %2</translation>
    </message>
    <message>
        <source>%1 is beyond this drive&apos;s limit of %2; it stays at %3</source>
        <translation>%1 liegt jenseits der Grenze dieses Antriebs von %2; es bleibt bei %3</translation>
    </message>
    <message>
        <source>%1 is beyond the limit of %2; it stays at %3</source>
        <translation>%1 liegt jenseits der Grenze von %2; es bleibt bei %3</translation>
    </message>
</context>
<context>
    <name>OutputFile</name>
    <message>
        <source>Full disk</source>
        <translation>Datenträger voll</translation>
    </message>
    <message>
        <source>nobody reads from this pipe</source>
        <translation>niemand liest aus dieser Pipe</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>%1 kann nicht geschrieben werden: %2.</translation>
    </message>
    <message>
        <source>Error writing to %1: %2.</source>
        <translation>Fehler beim Schreiben von %1: %2.</translation>
    </message>
</context>
<context>
    <name>ParameterPages</name>
    <message>
        <source>Sin(%1x)</source>
        <translation>Sin(%1x)</translation>
    </message>
    <message>
        <source>Cos(%1x)</source>
        <translation>Cos(%1x)</translation>
    </message>
    <message>
        <source>Poles come in pairs: %1 was rounded to an even number.</source>
        <translation>Pole gibt es paarweise: %1 wurde auf eine gerade Zahl gerundet.</translation>
    </message>
    <message>
        <source>Raised with [MCC]: the peak is never below it.</source>
        <translation>Mit [MCC] angehoben: Der Spitzenstrom liegt nie darunter.</translation>
    </message>
    <message>
        <source>Lowered with [MMC]: it is never above the peak.</source>
        <translation>Mit [MMC] gesenkt: Er liegt nie über dem Spitzenstrom.</translation>
    </message>
    <message>
        <source>Raised with [HLL]: it is never below it.</source>
        <translation>Mit [HLL] angehoben: Sie liegt nie darunter.</translation>
    </message>
    <message>
        <source>Lowered with [HHL]: it is never above it.</source>
        <translation>Mit [HHL] gesenkt: Sie liegt nie darüber.</translation>
    </message>
    <message>
        <source>%1 per motor revolution</source>
        <translation>%1 je Motorumdrehung</translation>
    </message>
    <message>
        <source>%1/s</source>
        <translation>%1/s</translation>
    </message>
    <message>
        <source>%1/s²</source>
        <translation>%1/s²</translation>
    </message>
    <message>
        <source>See guide &lt;a href=&quot;%1&quot;&gt;%2&lt;/a&gt;</source>
        <translation>Siehe Anleitung &lt;a href=&quot;%1&quot;&gt;%2&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Using SinCos encoder</source>
        <translation>SinCos-Geber verwenden</translation>
    </message>
    <message>
        <source>Using resolver</source>
        <translation>Resolver verwenden</translation>
    </message>
    <message>
        <source>Hide advanced settings</source>
        <translation>Erweiterte Einstellungen ausblenden</translation>
    </message>
    <message>
        <source>Show advanced settings</source>
        <translation>Erweiterte Einstellungen zeigen</translation>
    </message>
</context>
<context>
    <name>Parameters</name>
    <message>
        <source>Warning: the loaded file was saved without a drive. What nobody has typed into it are start values and nobody&apos;s settings: the drive&apos;s own stay in their place.</source>
        <translation>Warnung: Die geladene Datei wurde ohne Antrieb gespeichert. Was niemand eingegeben hat, sind Startwerte und niemandes Einstellungen: Die des Antriebs bleiben an ihrer Stelle.</translation>
    </message>
    <message>
        <source>Warning: the loaded file is saved on different device type &lt;b&gt;%1&lt;/b&gt; while connected device type is &lt;b&gt;%2&lt;/b&gt;. Some settings and their value ranges may be incompatible. Apply button might cause connection error if any parameter value is out of supported bounds.</source>
        <translation>Warnung: Die geladene Datei stammt von einem anderen Gerätetyp, &lt;b&gt;%1&lt;/b&gt;, während der verbundene Gerätetyp &lt;b&gt;%2&lt;/b&gt; ist. Manche Einstellungen und ihre Wertebereiche passen vielleicht nicht. Das Anwenden kann einen Verbindungsfehler auslösen, wenn ein Parameterwert außerhalb der unterstützten Grenzen liegt.</translation>
    </message>
    <message>
        <source>Attempt to load a file with unknown parameter %1. Possibly Velbrin version too old, try later version.</source>
        <translation>Versuch, eine Datei mit unbekanntem Parameter %1 zu laden. Vielleicht ist Velbrin zu alt; versuchen Sie es mit einer neueren Version.</translation>
    </message>
    <message>
        <source>Attempt to load a file with unusable %1 of parameter %2: &quot;%3&quot;.</source>
        <translation>Versuch, eine Datei mit unbrauchbarem %1 des Parameters %2 zu laden: „%3“.</translation>
    </message>
    <message>
        <source>Error writing settings to file %1</source>
        <translation>Fehler beim Schreiben der Einstellungen in die Datei %1</translation>
    </message>
    <message>
        <source>Error reading settings from file %1.</source>
        <translation>Fehler beim Lesen der Einstellungen aus der Datei %1.</translation>
    </message>
    <message>
        <source> File was saved with Velbrin version %1.</source>
        <translation> Die Datei wurde mit Velbrin-Version %1 gespeichert.</translation>
    </message>
    <message>
        <source>Unsupported file type or version. Try with later Velbrin version.</source>
        <translation>Nicht unterstützter Dateityp oder Version. Versuchen Sie es mit einer neueren Version von Velbrin.</translation>
    </message>
    <message>
        <source> It is incomplete: there are more settings in it than it counts.</source>
        <translation> Sie ist unvollständig: Sie enthält mehr Einstellungen, als sie zählt.</translation>
    </message>
</context>
<context>
    <name>PlotPage</name>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>%1 kann nicht gelesen werden: %2.</translation>
    </message>
</context>
<context>
    <name>PlotPicture</name>
    <message>
        <source>the browser engine has ended unexpectedly</source>
        <translation>die Browser-Engine hat sich unerwartet beendet</translation>
    </message>
    <message>
        <source>the plot could not be loaded</source>
        <translation>das Diagramm konnte nicht geladen werden</translation>
    </message>
    <message>
        <source>the plot could not be drawn in %1 s</source>
        <translation>das Diagramm konnte in %1 s nicht gezeichnet werden</translation>
    </message>
    <message>
        <source>the plot is too large for a picture</source>
        <translation>das Diagramm ist zu groß für ein Bild</translation>
    </message>
    <message>
        <source>Error writing graphs to file %1&lt;br&gt;%2</source>
        <translation>Fehler beim Schreiben der Diagramme in die Datei %1&lt;br&gt;%2</translation>
    </message>
</context>
<context>
    <name>QuickFileIcons</name>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>%1 file</source>
        <translation>%1-Datei</translation>
    </message>
</context>
<context>
    <name>RecordLength</name>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1 Hz</source>
        <translation>%1 Hz</translation>
    </message>
    <message>
        <source>%1 kHz</source>
        <translation>%1 kHz</translation>
    </message>
    <message>
        <source>No channel is chosen: there is nothing to record</source>
        <translation>Kein Kanal ist gewählt: Es gibt nichts aufzuzeichnen</translation>
    </message>
    <message>
        <source>%1 at %2 with 1 channel</source>
        <translation>%1 bei %2 mit 1 Kanal</translation>
    </message>
    <message>
        <source>%1 at %2 with %3 channels</source>
        <translation>%1 bei %2 mit %3 Kanälen</translation>
    </message>
    <message>
        <source>%1: a move of %2 will be cut off</source>
        <translation>%1: Eine Bewegung von %2 wird abgeschnitten</translation>
    </message>
</context>
<context>
    <name>Report</name>
    <message>
        <source>The machine&apos;s own emergency stop works, and does not depend on the program.</source>
        <translation>Der Not-Halt der Maschine wirkt und hängt nicht vom Programm ab.</translation>
    </message>
    <message>
        <source>Directions of motor, feedback and axis are right.</source>
        <translation>Die Richtungen von Motor, Geber und Achse stimmen.</translation>
    </message>
    <message>
        <source>Limit switches and soft limits stop the axis before its ends.</source>
        <translation>Endschalter und Software-Endlagen halten die Achse vor ihren Enden an.</translation>
    </message>
    <message>
        <source>The brake holds the axis when the drive is off.</source>
        <translation>Die Bremse hält die Achse, wenn der Antrieb aus ist.</translation>
    </message>
    <message>
        <source>Homing finds its place, again and again.</source>
        <translation>Die Referenzfahrt findet ihren Punkt, immer wieder.</translation>
    </message>
    <message>
        <source>Current limits suit motor, wiring and machine.</source>
        <translation>Die Stromgrenzen passen zu Motor, Verdrahtung und Maschine.</translation>
    </message>
    <message>
        <source>Fault limits were tried: over current, tracking error, over speed.</source>
        <translation>Die Abschaltgrenzen wurden erprobt: Überstrom, Schleppfehler, Überdrehzahl.</translation>
    </message>
    <message>
        <source>Guards and covers are in place.</source>
        <translation>Schutzeinrichtungen und Abdeckungen sind angebracht.</translation>
    </message>
    <message>
        <source>The settings are saved to the drive and to a file.</source>
        <translation>Die Einstellungen sind im Antrieb und in einer Datei gespeichert.</translation>
    </message>
    <message>
        <source>This is no commissioning report of Velbrin.</source>
        <translation>Dies ist kein Inbetriebnahmeprotokoll von Velbrin.</translation>
    </message>
    <message>
        <source>The checksum is not that of the settings in the report: something was changed in it.</source>
        <translation>Die Prüfsumme ist nicht die der Einstellungen im Protokoll: Darin wurde etwas geändert.</translation>
    </message>
    <message>
        <source>The report cannot be opened: it is not a plain file.</source>
        <translation>Das Protokoll kann nicht geöffnet werden: Es ist keine gewöhnliche Datei.</translation>
    </message>
    <message>
        <source>The report cannot be opened: %1.</source>
        <translation>Das Protokoll kann nicht geöffnet werden: %1.</translation>
    </message>
    <message>
        <source>The file is far too large to be a report.</source>
        <translation>Die Datei ist viel zu groß für ein Protokoll.</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>nicht bekannt</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modell</translation>
    </message>
    <message>
        <source>HW type ID</source>
        <translation>Hardware-Typkennung</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Seriennummer</translation>
    </message>
    <message>
        <source>Bus address</source>
        <translation>Busadresse</translation>
    </message>
    <message>
        <source>TarnwellCore firmware version</source>
        <translation>Version der TarnwellCore-Firmware</translation>
    </message>
    <message>
        <source>I/O side firmware version</source>
        <translation>Version der Firmware der E/A-Seite</translation>
    </message>
    <message>
        <source>Firmware revision ID</source>
        <translation>Firmware-Revision</translation>
    </message>
    <message>
        <source>Report made</source>
        <translation>Protokoll erstellt</translation>
    </message>
    <message>
        <source>Velbrin version</source>
        <translation>Velbrin-Version</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Antrieb</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>differs</source>
        <translation>weicht ab</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Einstellung</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>The drive&apos;s limits</source>
        <translation>Grenzen des Antriebs</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Vorgabe</translation>
    </message>
    <message>
        <source>Differs</source>
        <translation>Abweichung</translation>
    </message>
    <message>
        <source>What it is</source>
        <translation>Was es ist</translation>
    </message>
    <message>
        <source>Checksum of the settings (SHA-256), which &quot;velbrin-cli report --verify FILE&quot; checks:</source>
        <translation>Prüfsumme der Einstellungen (SHA-256), die „velbrin-cli report --verify FILE“ prüft:</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>The file does not say with which drive and settings it was recorded.</source>
        <translation>Die Datei sagt nicht, mit welchem Antrieb und welchen Einstellungen sie aufgezeichnet wurde.</translation>
    </message>
    <message>
        <source>Recorded on another drive: serial number %1.</source>
        <translation>Mit einem anderen Antrieb aufgezeichnet: Seriennummer %1.</translation>
    </message>
    <message>
        <source>Recorded with other settings: %1.</source>
        <translation>Mit anderen Einstellungen aufgezeichnet: %1.</translation>
    </message>
    <message>
        <source>Recorded: %1</source>
        <translation>Aufgezeichnet: %1</translation>
    </message>
    <message>
        <source>Note: %1</source>
        <translation>Notiz: %1</translation>
    </message>
    <message>
        <source>Captures</source>
        <translation>Aufzeichnungen</translation>
    </message>
    <message>
        <source>None were chosen.</source>
        <translation>Keine wurde gewählt.</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Stop test</source>
        <translation>Stopptest</translation>
    </message>
    <message>
        <source>Not done.</source>
        <translation>Nicht durchgeführt.</translation>
    </message>
    <message>
        <source>Time to standstill</source>
        <translation>Zeit bis zum Stillstand</translation>
    </message>
    <message>
        <source>ms</source>
        <translation>ms</translation>
    </message>
    <message>
        <source>Distance to standstill</source>
        <translation>Weg bis zum Stillstand</translation>
    </message>
    <message>
        <source>counts</source>
        <translation>Ink</translation>
    </message>
    <message>
        <source>Farthest point on the way</source>
        <translation>Entferntester Punkt auf dem Weg</translation>
    </message>
    <message>
        <source>Distance in revolutions</source>
        <translation>Weg in Umdrehungen</translation>
    </message>
    <message>
        <source>rev</source>
        <translation>U</translation>
    </message>
    <message>
        <source>Measured from the fault that the machine&apos;s stop raised, %1.</source>
        <translation>Gemessen ab der Störung, die der Not-Halt der Maschine ausgelöst hat, %1.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Signature</source>
        <translation>Unterschrift</translation>
    </message>
    <message>
        <source>Commissioned by:</source>
        <translation>In Betrieb genommen von:</translation>
    </message>
    <message>
        <source>Accepted by:</source>
        <translation>Abgenommen von:</translation>
    </message>
    <message>
        <source>Checklist</source>
        <translation>Prüfliste</translation>
    </message>
    <message>
        <source>Signatures</source>
        <translation>Unterschriften</translation>
    </message>
    <message>
        <source>Commissioning report</source>
        <translation>Inbetriebnahmeprotokoll</translation>
    </message>
    <message>
        <source>Commissioning report: %1</source>
        <translation>Inbetriebnahmeprotokoll: %1</translation>
    </message>
    <message>
        <source>en</source>
        <extracomment>The language of the report, two letters as in HTML.</extracomment>
        <translation>de</translation>
    </message>
</context>
<context>
    <name>ReportDialog</name>
    <message>
        <source>Commissioning report</source>
        <translation>Inbetriebnahmeprotokoll</translation>
    </message>
    <message>
        <source>Machine:</source>
        <translation>Maschine:</translation>
    </message>
    <message>
        <source>Changed settings:</source>
        <translation>Geänderte Einstellungen:</translation>
    </message>
    <message>
        <source>Captures:</source>
        <translation>Aufzeichnungen:</translation>
    </message>
    <message>
        <source>Stop test:</source>
        <translation>Stopptest:</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Einstellung</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>New drive</source>
        <translation>Neuer Antrieb</translation>
    </message>
    <message>
        <source>Your note</source>
        <translation>Ihre Notiz</translation>
    </message>
    <message>
        <source>none: capture on fault, press the machine&apos;s stop, and choose the capture here</source>
        <translation>keiner: bei Störung aufzeichnen, den Not-Halt der Maschine drücken und die Aufzeichnung hier wählen</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>SavedPage</name>
    <message>
        <source>not known</source>
        <translation>nicht bekannt</translation>
    </message>
    <message>
        <source>setpoint change in positive direction</source>
        <translation>Sollwertänderung in positiver Richtung</translation>
    </message>
    <message>
        <source>setpoint change</source>
        <translation>Sollwertänderung</translation>
    </message>
    <message>
        <source>fault</source>
        <translation>Störung</translation>
    </message>
    <message>
        <source>none, at once</source>
        <translation>keiner, sofort</translation>
    </message>
    <message>
        <source>setpoint from %1 to %2</source>
        <translation>Sollwert von %1 auf %2</translation>
    </message>
    <message>
        <source>to and fro: setpoint %1 for %2 s, %3 for %4 s</source>
        <translation>hin und her: Sollwert %1 für %2 s, %3 für %4 s</translation>
    </message>
    <message>
        <source>none that is known</source>
        <translation>keine bekannte</translation>
    </message>
    <message>
        <source>Recorded</source>
        <translation>Aufgezeichnet</translation>
    </message>
    <message>
        <source>Trigger</source>
        <translation>Trigger</translation>
    </message>
    <message>
        <source>Motion</source>
        <translation>Bewegung</translation>
    </message>
    <message>
        <source>Signals</source>
        <translation>Signale</translation>
    </message>
    <message>
        <source>Sample rate</source>
        <translation>Abtastrate</translation>
    </message>
    <message>
        <source>%1 Hz</source>
        <translation>%1 Hz</translation>
    </message>
    <message>
        <source>Velbrin version</source>
        <translation>Velbrin-Version</translation>
    </message>
    <message>
        <source>Capture</source>
        <translation>Aufzeichnung</translation>
    </message>
    <message>
        <source>Figures</source>
        <translation>Kennwerte</translation>
    </message>
    <message>
        <source>new drive: %1</source>
        <translation>neuer Antrieb: %1</translation>
    </message>
    <message>
        <source>Settings that are not a new drive&apos;s</source>
        <translation>Einstellungen, die von einem neuen Antrieb abweichen</translation>
    </message>
    <message>
        <source>None.</source>
        <translation>Keine.</translation>
    </message>
</context>
<context>
    <name>Scope</name>
    <message>
        <source>raw</source>
        <translation>roh</translation>
    </message>
    <message>
        <source>Show or hide this channel</source>
        <translation>Diesen Kanal zeigen oder verbergen</translation>
    </message>
    <message>
        <source>Click into a chart for the first cursor, Shift and click for the second.</source>
        <translation>Klicken Sie für den ersten Cursor in ein Diagramm, mit Umschalt für den zweiten.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>in grey</source>
        <translation>in Grau</translation>
    </message>
    <message>
        <source>shown</source>
        <translation>gezeigt</translation>
    </message>
    <message>
        <source>No setting differs.</source>
        <translation>Keine Einstellung weicht ab.</translation>
    </message>
    <message>
        <source>Cursors</source>
        <translation>Cursor</translation>
    </message>
    <message>
        <source>Step figures</source>
        <translation>Sprungantwort</translation>
    </message>
    <message>
        <source>Axis sheet</source>
        <translation>Achsblatt</translation>
    </message>
    <message>
        <source>Captures of this session</source>
        <translation>Aufzeichnungen dieser Sitzung</translation>
    </message>
    <message>
        <source>Settings that differ</source>
        <translation>Abweichende Einstellungen</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Notiz</translation>
    </message>
    <message>
        <source>Whole record</source>
        <translation>Alles</translation>
    </message>
    <message>
        <source>All of the record in all charts (0)</source>
        <translation>Die ganze Aufzeichnung in allen Diagrammen (0)</translation>
    </message>
    <message>
        <source>Less of the record, larger (+, wheel)</source>
        <translation>Ein kürzeres Stück, größer (+, Mausrad)</translation>
    </message>
    <message>
        <source>More of the record (-, wheel)</source>
        <translation>Ein längeres Stück (-, Mausrad)</translation>
    </message>
    <message>
        <source>No cursors</source>
        <translation>Keine Cursor</translation>
    </message>
    <message>
        <source>Takes both cursors away (C)</source>
        <translation>Entfernt beide Cursor (C)</translation>
    </message>
    <message>
        <source>Put AFF and VFF into the pages</source>
        <translation>AFF und VFF in die Seiten übernehmen</translation>
    </message>
    <message>
        <source>As a change that is not applied yet: the drive gets it with Apply</source>
        <translation>Als noch nicht angewendete Änderung: Der Antrieb erhält sie mit „Anwenden“</translation>
    </message>
    <message>
        <source>take away</source>
        <translation>wegnehmen</translation>
    </message>
    <message>
        <source>No longer under the present capture</source>
        <translation>Nicht mehr unter der aktuellen Aufzeichnung</translation>
    </message>
    <message>
        <source>Open capture...</source>
        <translation>Aufzeichnung öffnen...</translation>
    </message>
    <message>
        <source>A capture that was saved as a page or as columns</source>
        <translation>Eine Aufzeichnung, die als Seite oder als Spalten gespeichert wurde</translation>
    </message>
    <message>
        <source>Back to the pages (F11)</source>
        <translation>Zurück zu den Seiten (F11)</translation>
    </message>
    <message>
        <source>Open out (F11)</source>
        <translation>Vergrößern (F11)</translation>
    </message>
    <message>
        <source>The charts over the whole window, and back</source>
        <translation>Die Diagramme über das ganze Fenster, und zurück</translation>
    </message>
    <message>
        <source>Units of all charts and values (U)</source>
        <translation>Einheiten aller Diagramme und Werte (U)</translation>
    </message>
    <message>
        <source>Raw words</source>
        <translation>Rohwerte</translation>
    </message>
    <message>
        <source>As recorded</source>
        <translation>Wie aufgezeichnet</translation>
    </message>
    <message>
        <source>lay under</source>
        <translation>unterlegen</translation>
    </message>
    <message>
        <source>In grey under the present capture</source>
        <translation>In Grau unter der aktuellen Aufzeichnung</translation>
    </message>
    <message>
        <source>Show this capture</source>
        <translation>Diese Aufzeichnung zeigen</translation>
    </message>
    <message>
        <source>Rise</source>
        <translation>Anstieg</translation>
    </message>
    <message>
        <source>Overshoot</source>
        <translation>Überschwingen</translation>
    </message>
    <message>
        <source>Settling</source>
        <translation>Einschwingen</translation>
    </message>
    <message>
        <source>RMS error</source>
        <translation>Eff. Fehler</translation>
    </message>
    <message>
        <source>rev/s, degrees</source>
        <translation>U/s, Grad</translation>
    </message>
    <message>
        <source>rev/s</source>
        <translation>U/s</translation>
    </message>
    <message>
        <source>degrees</source>
        <translation>Grad</translation>
    </message>
    <message>
        <source>%1/s</source>
        <translation>%1/s</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Save as file</source>
        <translation>Als Datei speichern</translation>
    </message>
    <message>
        <source>Restore zoom</source>
        <translation>Zoom zurücksetzen</translation>
    </message>
    <message>
        <source>Switch to help browser</source>
        <translation>Zur Hilfe</translation>
    </message>
    <message>
        <source>Click and drag on graph to zoom</source>
        <translation>Zum Vergrößern im Diagramm klicken und ziehen</translation>
    </message>
    <message>
        <source>vel = counts per control cycle of 0.4 ms. Revolutions per second = vel × 2500 / (4 × FBR).</source>
        <translation>vel = Inkremente je Regelzyklus von 0,4 ms. Umdrehungen je Sekunde = vel × 2500 / (4 × FBR).</translation>
    </message>
</context>
<context>
    <name>SettingChanges</name>
    <message>
        <source>%1 grows more than threefold: %2 -&gt; %3.</source>
        <translation>%1 wächst auf mehr als das Dreifache: %2 -&gt; %3.</translation>
    </message>
</context>
<context>
    <name>SettingFacts</name>
    <message>
        <source>Enable and limit input logic</source>
        <translation>Logik von Freigabe und Endschaltern</translation>
    </message>
    <message>
        <source>Bus address offset</source>
        <translation>Versatz der Busadresse</translation>
    </message>
    <message>
        <source>Cogging compensation function</source>
        <translation>Funktion der Rastmomentkompensation</translation>
    </message>
    <message>
        <source>Torque uniformity compensation function</source>
        <translation>Funktion der Drehmomentkompensation</translation>
    </message>
    <message>
        <source>Cogging compensation amplitude</source>
        <translation>Amplitude der Rastmomentkompensation</translation>
    </message>
    <message>
        <source>Torque uniformity compensation amplitude</source>
        <translation>Amplitude der Drehmomentkompensation</translation>
    </message>
    <message>
        <source>Feedback device resolution</source>
        <translation>Auflösung des Gebers</translation>
    </message>
    <message>
        <source>Position feedback device</source>
        <translation>Positionsgeber</translation>
    </message>
    <message>
        <source>Velocity feedback device</source>
        <translation>Geschwindigkeitsgeber</translation>
    </message>
    <message>
        <source>Torque bandwidth</source>
        <translation>Drehmomentbandbreite</translation>
    </message>
    <message>
        <source>Velocity P gain</source>
        <translation>P-Verstärkung Geschwindigkeit</translation>
    </message>
    <message>
        <source>Velocity I gain</source>
        <translation>I-Verstärkung Geschwindigkeit</translation>
    </message>
    <message>
        <source>Position P gain</source>
        <translation>P-Verstärkung Position</translation>
    </message>
    <message>
        <source>Velocity feed-forward gain</source>
        <translation>Geschwindigkeitsvorsteuerung</translation>
    </message>
    <message>
        <source>Acceleration feed-forward gain</source>
        <translation>Beschleunigungsvorsteuerung</translation>
    </message>
    <message>
        <source>Position feed-forward gain</source>
        <translation>Positionsvorsteuerung</translation>
    </message>
    <message>
        <source>Control mode</source>
        <translation>Regelart</translation>
    </message>
    <message>
        <source>Motor type</source>
        <translation>Motortyp</translation>
    </message>
    <message>
        <source>Active damping gain</source>
        <translation>Aktive Dämpfung</translation>
    </message>
    <message>
        <source>Switches of enabling, direction and feedback</source>
        <translation>Schalter für Freigabe, Richtung und Geber</translation>
    </message>
    <message>
        <source>Peak current</source>
        <translation>Spitzenstrom</translation>
    </message>
    <message>
        <source>Continuous current</source>
        <translation>Dauerstrom</translation>
    </message>
    <message>
        <source>Over current fault threshold</source>
        <translation>Abschaltgrenze Überstrom</translation>
    </message>
    <message>
        <source>Over voltage fault threshold</source>
        <translation>Abschaltgrenze Überspannung</translation>
    </message>
    <message>
        <source>Under voltage fault threshold</source>
        <translation>Abschaltgrenze Unterspannung</translation>
    </message>
    <message>
        <source>Position tracking error threshold</source>
        <translation>Schleppfehlergrenze Position</translation>
    </message>
    <message>
        <source>Velocity tracking error threshold</source>
        <translation>Schleppfehlergrenze Geschwindigkeit</translation>
    </message>
    <message>
        <source>Over speed fault threshold</source>
        <translation>Abschaltgrenze Überdrehzahl</translation>
    </message>
    <message>
        <source>Motion fault threshold</source>
        <translation>Abschaltgrenze Bewegung</translation>
    </message>
    <message>
        <source>Limit switch function</source>
        <translation>Endschalterfunktion</translation>
    </message>
    <message>
        <source>Axis scale</source>
        <translation>Achsskalierung</translation>
    </message>
    <message>
        <source>Axis type &amp; units</source>
        <translation>Achstyp &amp; Einheiten</translation>
    </message>
    <message>
        <source>Tracking fault delay</source>
        <translation>Verzögerung Schleppfehlerstörung</translation>
    </message>
    <message>
        <source>Setpoint input</source>
        <translation>Sollwerteingang</translation>
    </message>
    <message>
        <source>Setpoint divider</source>
        <translation>Sollwertteiler</translation>
    </message>
    <message>
        <source>Setpoint multiplier</source>
        <translation>Sollwertmultiplikator</translation>
    </message>
    <message>
        <source>Acceleration limit</source>
        <translation>Beschleunigungsgrenze</translation>
    </message>
    <message>
        <source>Stop deceleration limit</source>
        <translation>Verzögerung beim Halt</translation>
    </message>
    <message>
        <source>Velocity limit</source>
        <translation>Geschwindigkeitsgrenze</translation>
    </message>
    <message>
        <source>Recovery velocity limit</source>
        <translation>Geschwindigkeitsgrenze Rückkehr</translation>
    </message>
    <message>
        <source>Motor resistance</source>
        <translation>Motorwiderstand</translation>
    </message>
    <message>
        <source>Motor inductance</source>
        <translation>Motorinduktivität</translation>
    </message>
    <message>
        <source>Thermal time constant</source>
        <translation>Thermische Zeitkonstante</translation>
    </message>
    <message>
        <source>Pole count</source>
        <translation>Polzahl</translation>
    </message>
    <message>
        <source>Maximum speed</source>
        <translation>Höchste Drehzahl</translation>
    </message>
    <message>
        <source>Setpoint offset nulling</source>
        <translation>Nullabgleich des Sollwerts</translation>
    </message>
    <message>
        <source>Homing method</source>
        <translation>Art der Referenzfahrt</translation>
    </message>
    <message>
        <source>Homing velocity</source>
        <translation>Geschwindigkeit der Referenzfahrt</translation>
    </message>
    <message>
        <source>Homing acceleration</source>
        <translation>Beschleunigung der Referenzfahrt</translation>
    </message>
    <message>
        <source>Homing hard stop threshold</source>
        <translation>Festanschlagschwelle</translation>
    </message>
    <message>
        <source>Homing current limit</source>
        <translation>Stromgrenze der Referenzfahrt</translation>
    </message>
    <message>
        <source>Soft high limit</source>
        <translation>Obere Software-Endlage</translation>
    </message>
    <message>
        <source>Soft low limit</source>
        <translation>Untere Software-Endlage</translation>
    </message>
    <message>
        <source>Homing offset move</source>
        <translation>Weg nach dem Referenzpunkt</translation>
    </message>
    <message>
        <source>Override 1, register</source>
        <translation>Überschreibung 1, Register</translation>
    </message>
    <message>
        <source>Override 2, register</source>
        <translation>Überschreibung 2, Register</translation>
    </message>
    <message>
        <source>Override 3, register</source>
        <translation>Überschreibung 3, Register</translation>
    </message>
    <message>
        <source>Override 1, value</source>
        <translation>Überschreibung 1, Wert</translation>
    </message>
    <message>
        <source>Override 2, value</source>
        <translation>Überschreibung 2, Wert</translation>
    </message>
    <message>
        <source>Override 3, value</source>
        <translation>Überschreibung 3, Wert</translation>
    </message>
    <message>
        <source>Brake engage delay</source>
        <translation>Verzögerung beim Schließen der Bremse</translation>
    </message>
    <message>
        <source>Brake release delay</source>
        <translation>Verzögerung beim Lüften der Bremse</translation>
    </message>
    <message>
        <source>Brake deceleration delay</source>
        <translation>Auslaufzeit vor dem Schließen der Bremse</translation>
    </message>
    <message>
        <source>counts</source>
        <translation>Ink</translation>
    </message>
    <message>
        <source>cnt/cycle</source>
        <translation>Ink/Zyklus</translation>
    </message>
    <message>
        <source>cnt/cycle/DIV</source>
        <translation>Ink/Zyklus/DIV</translation>
    </message>
    <message>
        <source>cnt/cycle²/DIV</source>
        <translation>Ink/Zyklus²/DIV</translation>
    </message>
    <message>
        <source>setpoint units</source>
        <translation>Sollwerteinheiten</translation>
    </message>
    <message>
        <source>lines/rev</source>
        <translation>Striche/U</translation>
    </message>
    <message>
        <source>poles</source>
        <translation>Pole</translation>
    </message>
    <message>
        <source>rpm</source>
        <translation>1/min</translation>
    </message>
    <message>
        <source>bits</source>
        <translation>Bits</translation>
    </message>
    <message>
        <source>raw</source>
        <translation>roh</translation>
    </message>
    <message>
        <source>%1: %2 (new drive: %3)</source>
        <translation>%1: %2 (neuer Antrieb: %3)</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>SettingFields</name>
    <message>
        <source>on</source>
        <translation>ein</translation>
    </message>
    <message>
        <source>off</source>
        <translation>aus</translation>
    </message>
    <message>
        <source>Value %1</source>
        <translation>Wert %1</translation>
    </message>
</context>
<context>
    <name>SettingFinder</name>
    <message>
        <source>[HWTYPE] Model, HW type ID</source>
        <translation>[HWTYPE] Modell, Hardware-Typkennung</translation>
    </message>
    <message>
        <source>[UID] Number that is unique to this drive</source>
        <translation>[UID] Nummer, die nur dieser Antrieb hat</translation>
    </message>
    <message>
        <source>[PIF] Control cycle frequency in Hz</source>
        <translation>[PIF] Frequenz des Regelzyklus in Hz</translation>
    </message>
    <message>
        <source>[FLAGS] Bit field of CEN, CED, FBI, AXI, CEP, CIS, FBH and BAP</source>
        <translation>[FLAGS] Bitfeld von CEN, CED, FBI, AXI, CEP, CIS, FBH und BAP</translation>
    </message>
    <message>
        <source>[HOMING] Bit field of HME, HMS, HMI and HFO</source>
        <translation>[HOMING] Bitfeld von HME, HMS, HMI und HFO</translation>
    </message>
    <message>
        <source>Parameter overrides, Ctrl+P</source>
        <translation>Parameter überschreiben, Strg+P</translation>
    </message>
    <message>
        <source>help only</source>
        <translation>nur in der Hilfe</translation>
    </message>
    <message>
        <source>Find a setting</source>
        <translation>Einstellung suchen</translation>
    </message>
    <message>
        <source>&amp;Mnemonic, name, unit, or a word of the help:</source>
        <translation>&amp;Kürzel, Name, Einheit oder ein Wort der Hilfe:</translation>
    </message>
    <message>
        <source>Settings found</source>
        <translation>Gefundene Einstellungen</translation>
    </message>
    <message>
        <source>%1%2: not on this model</source>
        <translation>%1%2: nicht bei diesem Modell</translation>
    </message>
    <message>
        <source>%1%2: %3</source>
        <translation>%1%2: %3</translation>
    </message>
    <message>
        <source>No setting has these words</source>
        <translation>Keine Einstellung hat diese Wörter</translation>
    </message>
</context>
<context>
    <name>SettingGuide</name>
    <message>
        <source>[%1] is not shown: this model lacks it, or other settings leave it without effect</source>
        <translation>[%1] ist nicht zu sehen: Dieses Modell hat es nicht, oder andere Einstellungen machen es wirkungslos</translation>
    </message>
    <message>
        <source>[%1] is not on this model</source>
        <translation>[%1] gibt es bei diesem Modell nicht</translation>
    </message>
</context>
<context>
    <name>SettingsChecks</name>
    <message>
        <source>%1 is not on this model (%2).</source>
        <translation>%1 gibt es bei diesem Modell nicht (%2).</translation>
    </message>
    <message>
        <source>%1 is read-only.</source>
        <translation>%1 kann nur gelesen werden.</translation>
    </message>
    <message>
        <source>%1=%2 is outside the drive&apos;s limits, %3 to %4.</source>
        <translation>%1=%2 liegt außerhalb der Grenzen des Antriebs, %3 bis %4.</translation>
    </message>
    <message>
        <source>%1=%2 is refused: that register is a command to the drive and not a setting.</source>
        <translation>%1=%2 wird abgelehnt: Dieses Register ist ein Befehl an den Antrieb und keine Einstellung.</translation>
    </message>
    <message>
        <source>Applied: the drive had these values already</source>
        <translation>Angewendet: Der Antrieb hatte diese Werte schon</translation>
    </message>
    <message>
        <source>%1 applied</source>
        <translation>%1 angewendet</translation>
    </message>
    <message>
        <source>%1 %2 -&gt; %3</source>
        <translation>%1 %2 -&gt; %3</translation>
    </message>
    <message>
        <source>%1 applied, %2 not taken: %3</source>
        <translation>%1 angewendet, %2 nicht übernommen: %3</translation>
    </message>
</context>
<context>
    <name>StatePanels</name>
    <message>
        <source>Device state as last known, the connection has ended</source>
        <translation>Gerätezustand wie zuletzt bekannt, die Verbindung ist beendet</translation>
    </message>
    <message>
        <source>%1 (last known)</source>
        <translation>%1 (zuletzt bekannt)</translation>
    </message>
</context>
<context>
    <name>StatusStrip</name>
    <message>
        <source>Drive</source>
        <translation>Antrieb</translation>
    </message>
    <message>
        <source>What this fault means and what to do</source>
        <translation>Was diese Störung bedeutet und was zu tun ist</translation>
    </message>
    <message>
        <source>Help on this fault</source>
        <translation>Hilfe zu dieser Störung</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>Freigeben</translation>
    </message>
    <message>
        <source>Gives the software enable, as on the Connect page.</source>
        <translation>Gibt die Software-Freigabe, wie auf der Seite „Verbinden“.</translation>
    </message>
    <message>
        <source>Disable [Esc]</source>
        <translation>Sperren [Esc]</translation>
    </message>
    <message>
        <source>Takes the power off the motor.</source>
        <translation>Nimmt dem Motor den Strom.</translation>
    </message>
    <message>
        <source>Clear faults</source>
        <translation>Quittieren</translation>
    </message>
    <message>
        <source>Clears the faults. Remove their cause first. Shortcut Alt+R</source>
        <translation>Quittiert die Störungen. Beheben Sie zuerst deren Ursache. Tastenkürzel Alt+R</translation>
    </message>
</context>
<context>
    <name>TestingPage</name>
    <message>
        <source>Testing: move the axis and see what it does</source>
        <translation>Testen: die Achse bewegen und sehen, was sie tut</translation>
    </message>
    <message>
        <source>Test stimulus generation</source>
        <translation>Testsignal</translation>
    </message>
    <message>
        <source>&lt;p&gt;Setpoint in setpoint units that the buttons beside it send and that the test stimulus holds for [TSD1].&lt;/p&gt;</source>
        <translation>&lt;p&gt;Sollwert in Sollwerteinheiten, den die Schaltflächen daneben senden und den das Testsignal für [TSD1] hält.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>[TSP1] Target setpoint 1</source>
        <translation>[TSP1] Sollwert 1</translation>
    </message>
    <message>
        <source>&lt;p&gt;Moves to this setpoint at once.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Fährt sofort auf diesen Sollwert.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Set Abs</source>
        <translation>Absolut</translation>
    </message>
    <message>
        <source>&lt;p&gt;Adds this setpoint to the present one at once.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Addiert diesen Sollwert sofort zum aktuellen.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Set Inc</source>
        <translation>Relativ</translation>
    </message>
    <message>
        <source>&lt;p&gt;Time in seconds for which the test stimulus holds [TSP1].&lt;/p&gt;</source>
        <translation>&lt;p&gt;Zeit in Sekunden, für die das Testsignal [TSP1] hält.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>[TSD1] Delay 1</source>
        <translation>[TSD1] Dauer 1</translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source>Shortcut Alt+1</source>
        <translation>Tasten Alt+1</translation>
    </message>
    <message>
        <source>Shortcut Alt+3</source>
        <translation>Tasten Alt+3</translation>
    </message>
    <message>
        <source>&lt;p&gt;Setpoint in setpoint units that the buttons beside it send and that the test stimulus holds for [TSD2].&lt;/p&gt;</source>
        <translation>&lt;p&gt;Sollwert in Sollwerteinheiten, den die Schaltflächen daneben senden und den das Testsignal für [TSD2] hält.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>[TSP2] Target setpoint 2</source>
        <translation>[TSP2] Sollwert 2</translation>
    </message>
    <message>
        <source>&lt;p&gt;Time in seconds for which the test stimulus holds [TSP2].&lt;/p&gt;</source>
        <translation>&lt;p&gt;Zeit in Sekunden, für die das Testsignal [TSP2] hält.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>[TSD2] Delay 2</source>
        <translation>[TSD2] Dauer 2</translation>
    </message>
    <message>
        <source>Shortcut Alt+2</source>
        <translation>Tasten Alt+2</translation>
    </message>
    <message>
        <source>Shortcut Alt+4</source>
        <translation>Tasten Alt+4</translation>
    </message>
    <message>
        <source>&lt;p&gt;Alternates the setpoint between the two targets for as long as it is ticked. The axis moves.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Wechselt den Sollwert zwischen den beiden Zielen, solange das Häkchen gesetzt ist. Die Achse bewegt sich.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>[TSE] Enable test stimulus</source>
        <translation>[TSE] Testsignal einschalten</translation>
    </message>
    <message>
        <source>Setpoint now: no data</source>
        <translation>Sollwert jetzt: keine Daten</translation>
    </message>
    <message>
        <source>&lt;p&gt;Stops the test stimulus and sends setpoint 0.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Hält das Testsignal an und sendet Sollwert 0.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Set zero</source>
        <translation>Sollwert 0</translation>
    </message>
    <message>
        <source>Shortcut Alt+0</source>
        <translation>Tasten Alt+0</translation>
    </message>
    <message>
        <source>When the cable or the connection is lost, up to five seconds of motion are still in the drive, and it stays enabled. Keep the machine&apos;s own stop within reach.</source>
        <translation>Geht das Kabel oder die Verbindung verloren, sind noch bis zu fünf Sekunden Bewegung im Antrieb, und er bleibt freigegeben. Halten Sie den Not-Halt der Maschine in Reichweite.</translation>
    </message>
    <message>
        <source>Stimulus presets</source>
        <translation>Vorlagen für Testsignale</translation>
    </message>
    <message>
        <source>Capture &amp;&amp; graphs</source>
        <translation>Aufzeichnung &amp;&amp; Diagramme</translation>
    </message>
    <message>
        <source>Capture signals selection</source>
        <translation>Aufzuzeichnende Signale</translation>
    </message>
    <message>
        <source>Torque setpoint [A]</source>
        <translation>Solldrehmoment [A]</translation>
    </message>
    <message>
        <source>Torque achieved [A]</source>
        <translation>Istdrehmoment [A]</translation>
    </message>
    <message>
        <source>Velocity setpoint</source>
        <translation>Sollgeschwindigkeit</translation>
    </message>
    <message>
        <source>Velocity achieved</source>
        <translation>Istgeschwindigkeit</translation>
    </message>
    <message>
        <source>Position setpoint</source>
        <translation>Sollposition</translation>
    </message>
    <message>
        <source>Position achieved</source>
        <translation>Istposition</translation>
    </message>
    <message>
        <source>Tracking error</source>
        <translation>Schleppfehler</translation>
    </message>
    <message>
        <source>Output voltage [%]</source>
        <translation>Ausgangsspannung [%]</translation>
    </message>
    <message>
        <source>HV bus voltage [VDC]</source>
        <translation>Zwischenkreis [VDC]</translation>
    </message>
    <message>
        <source>Debug 1</source>
        <translation>Debug 1</translation>
    </message>
    <message>
        <source>Debug 2</source>
        <translation>Debug 2</translation>
    </message>
    <message>
        <source>Flux current</source>
        <translation>Feldstrom</translation>
    </message>
    <message>
        <source>Flux voltage</source>
        <translation>Feldspannung</translation>
    </message>
    <message>
        <source>PWM1</source>
        <translation>PWM1</translation>
    </message>
    <message>
        <source>PWM2</source>
        <translation>PWM2</translation>
    </message>
    <message>
        <source>PWM3</source>
        <translation>PWM3</translation>
    </message>
    <message>
        <source>Capture controls</source>
        <translation>Aufzeichnung steuern</translation>
    </message>
    <message>
        <source>Trigger</source>
        <translation>Trigger</translation>
    </message>
    <message>
        <source>&lt;p&gt;What starts the recording.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Was die Aufzeichnung startet.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Capture on setpoint change in positive direction</source>
        <translation>Aufzeichnen, wenn der Sollwert steigt</translation>
    </message>
    <message>
        <source>Capture on setpoint change</source>
        <translation>Aufzeichnen, wenn sich der Sollwert ändert</translation>
    </message>
    <message>
        <source>Capture on fault</source>
        <translation>Aufzeichnen bei Störung</translation>
    </message>
    <message>
        <source>Capture instantly</source>
        <translation>Sofort aufzeichnen</translation>
    </message>
    <message>
        <source>Shortcut Alt+S</source>
        <translation>Tasten Alt+S</translation>
    </message>
    <message>
        <source>Start capture</source>
        <translation>Aufzeichnung starten</translation>
    </message>
    <message>
        <source>Sample rate</source>
        <translation>Abtastrate</translation>
    </message>
    <message>
        <source>&lt;p&gt;Samples a second. A lower rate records for a longer time.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Abtastwerte je Sekunde. Eine niedrigere Rate zeichnet länger auf.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&lt;p&gt;Starts the next capture as soon as the graphs of the last one are shown.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Startet die nächste Aufzeichnung, sobald die Diagramme der letzten zu sehen sind.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Continuously repeating capture</source>
        <translation>Fortlaufend aufzeichnen</translation>
    </message>
    <message>
        <source>Device state</source>
        <translation>Gerätezustand</translation>
    </message>
    <message>
        <source>&lt;p&gt;Clears the faults shown below. Remove their cause first.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Quittiert die unten gezeigten Störungen. Beheben Sie zuerst deren Ursache.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&amp;Clear drive faults [Alt+R]</source>
        <translation>Störungen &amp;quittieren [Alt+R]</translation>
    </message>
    <message>
        <source>Copy device state to clipboard</source>
        <translation>Gerätezustand kopieren</translation>
    </message>
    <message>
        <source>Status info may be easily pasted to email or support request message</source>
        <translation>Die Zustandsangaben lassen sich leicht in eine E-Mail oder Supportanfrage einfügen</translation>
    </message>
    <message>
        <source>Physical inputs</source>
        <translation>Physische Eingänge</translation>
    </message>
    <message>
        <source>No data</source>
        <translation>Keine Daten</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Fault register</source>
        <translation>Störungsregister</translation>
    </message>
    <message>
        <source>Setpoint last known: %1</source>
        <translation>Sollwert zuletzt bekannt: %1</translation>
    </message>
    <message>
        <source>Setpoint now: %1</source>
        <translation>Sollwert jetzt: %1</translation>
    </message>
</context>
<context>
    <name>TriesDesk</name>
    <message>
        <source>There is no plot to open out: capture something, or open a capture</source>
        <translation>Es gibt kein Diagramm zum Vergrößern: Zeichnen Sie etwas auf oder öffnen Sie eine Aufzeichnung</translation>
    </message>
    <message>
        <source>Open capture</source>
        <translation>Aufzeichnung öffnen</translation>
    </message>
    <message>
        <source>Captures (*.html *.json *.csv);;All files (*)</source>
        <translation>Aufzeichnungen (*.html *.json *.csv);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source> pixels</source>
        <translation> Bildpunkte</translation>
    </message>
    <message>
        <source>Save graphs to file</source>
        <translation>Diagramme in Datei speichern</translation>
    </message>
    <message>
        <source>Width of a picture:</source>
        <translation>Breite eines Bildes:</translation>
    </message>
    <message>
        <source>Nothing saved: give the file a name that ends in .png, .csv or .html</source>
        <translation>Nichts gespeichert: Geben Sie der Datei einen Namen, der auf .png, .csv oder .html endet</translation>
    </message>
    <message>
        <source>Error writing graphs to file %1</source>
        <translation>Fehler beim Schreiben der Diagramme in die Datei %1</translation>
    </message>
    <message>
        <source>No report: connect to the drive that it is about, and let its settings be read</source>
        <translation>Kein Protokoll: Verbinden Sie den Antrieb, um den es geht, und lassen Sie seine Einstellungen lesen</translation>
    </message>
    <message>
        <source>Save report</source>
        <translation>Protokoll speichern</translation>
    </message>
    <message>
        <source>Report (*.html)</source>
        <translation>Protokoll (*.html)</translation>
    </message>
    <message>
        <source>Report written to %1</source>
        <translation>Protokoll in %1 geschrieben</translation>
    </message>
    <message>
        <source>Nothing taken: this capture is of another type of drive.</source>
        <translation>Nichts übernommen: Diese Aufzeichnung stammt von einem anderen Antriebstyp.</translation>
    </message>
    <message>
        <source>Nothing taken: this capture was opened from columns of text, which hold no settings</source>
        <translation>Nichts übernommen: Diese Aufzeichnung wurde aus Textspalten geöffnet, die keine Einstellungen enthalten</translation>
    </message>
    <message>
        <source>The pages have these settings already</source>
        <translation>Die Seiten haben diese Einstellungen schon</translation>
    </message>
    <message>
        <source>Settings put into the pages: %1. The drive gets them with Apply</source>
        <translation>In die Seiten übernommene Einstellungen: %1. Der Antrieb erhält sie mit „Anwenden“</translation>
    </message>
    <message>
        <source>Writing report...</source>
        <translation>Protokoll wird geschrieben...</translation>
    </message>
</context>
<context>
    <name>TriesPanel</name>
    <message>
        <source>Overshoot</source>
        <translation>Überschwingen</translation>
    </message>
    <message>
        <source>Settling</source>
        <translation>Einschwingen</translation>
    </message>
    <message>
        <source>RMS error</source>
        <translation>Eff. Fehler</translation>
    </message>
    <message>
        <source>Tries</source>
        <translation>Versuche</translation>
    </message>
    <message>
        <source>Take these settings</source>
        <translation>Einstellungen übernehmen</translation>
    </message>
    <message>
        <source>&lt;p&gt;Puts the settings of the selected try into the pages. The drive gets them with Apply.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Trägt die Einstellungen des gewählten Versuchs in die Seiten ein. Der Antrieb erhält sie mit „Anwenden“.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Lay under</source>
        <translation>Unterlegen</translation>
    </message>
    <message>
        <source>&lt;p&gt;Draws the selected try in grey under the newest one.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Zeichnet den gewählten Versuch in Grau unter den neuesten.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Open capture...</source>
        <translation>Aufzeichnung öffnen...</translation>
    </message>
    <message>
        <source>&lt;p&gt;Opens a capture that was saved as a page or as columns; no drive is needed.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Öffnet eine Aufzeichnung, die als Seite oder als Spalten gespeichert wurde; ein Antrieb ist nicht nötig.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Report...</source>
        <translation>Protokoll...</translation>
    </message>
    <message>
        <source>&lt;p&gt;A commissioning report of this drive, with the captures that you choose: one page that prints well.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Ein Inbetriebnahmeprotokoll dieses Antriebs mit den Aufzeichnungen, die Sie wählen: eine Seite, die sich gut drucken lässt.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>nicht bekannt</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>&lt;p&gt;Every capture of this session, the newest on top, with the settings in which they differ. A click shows it; a double click on its note, or F2, changes the note.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Jede Aufzeichnung dieser Sitzung, die neueste oben, mit den Einstellungen, in denen sie sich unterscheiden. Ein Klick zeigt sie; ein Doppelklick auf ihre Notiz oder F2 ändert die Notiz.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Notiz</translation>
    </message>
    <message>
        <source>&lt;p&gt;Your own words on this try: double-click, or F2. They go into a saved page and into the report.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Ihre eigenen Worte zu diesem Versuch: Doppelklick oder F2. Sie kommen in eine gespeicherte Seite und in das Protokoll.&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>TuningPage</name>
    <message>
        <source>Tuning: how firmly the axis follows</source>
        <translation>Abstimmen: wie fest die Achse folgt</translation>
    </message>
    <message>
        <source>Torque control</source>
        <translation>Drehmomentregelung</translation>
    </message>
    <message>
        <source>&lt;p&gt;Speed of the torque control; set it before the other gains. Higher is stiffer but louder and needs correct [MR] and [ML]; lower is quiet but limits the velocity gains.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Schnelligkeit der Drehmomentregelung; stellen Sie sie vor den anderen Verstärkungen ein. Höher ist steifer, aber lauter, und braucht richtige [MR] und [ML]; niedriger ist leise, begrenzt aber die Verstärkungen der Geschwindigkeit.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>[TBW] Torque bandwidth</source>
        <translation>[TBW] Drehmomentbandbreite</translation>
    </message>
    <message>
        <source>&lt;p&gt;Damps a springy coupling between motor and load. Leave at 0; too much makes the axis noisy.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Dämpft eine federnde Kopplung zwischen Motor und Last. Auf 0 lassen; zu viel macht die Achse laut.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>[AD] Active damping gain</source>
        <translation>[AD] Aktive Dämpfung</translation>
    </message>
    <message>
        <source>Velocity control</source>
        <translation>Geschwindigkeitsregelung</translation>
    </message>
    <message>
        <source>&lt;p&gt;Main gain against velocity error: raise it until the motor begins to buzz, then take back a third. Too much buzzes and oscillates, too little is soft and swings slowly.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Hauptverstärkung gegen den Geschwindigkeitsfehler: Erhöhen Sie sie, bis der Motor zu brummen beginnt, und nehmen Sie dann ein Drittel zurück. Zu viel brummt und schwingt, zu wenig ist weich und pendelt langsam.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>[KVP] Velocity P gain</source>
        <translation>[KVP] P-Verstärkung Geschwindigkeit</translation>
    </message>
    <message>
        <source>&lt;p&gt;Removes the error that a steady load leaves behind. Too much overshoots and swings, too little recovers slowly from load and friction.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Beseitigt den Fehler, den eine stetige Last hinterlässt. Zu viel schwingt über und pendelt, zu wenig erholt sich langsam von Last und Reibung.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>[KVI] Velocity I gain</source>
        <translation>[KVI] I-Verstärkung Geschwindigkeit</translation>
    </message>
    <message>
        <source>&lt;p&gt;Adds torque in proportion to velocity, against friction that grows with speed. Leave at 0 until the gains are set; too much makes the axis run ahead.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Addiert Drehmoment im Verhältnis zur Geschwindigkeit, gegen Reibung, die mit ihr wächst. Auf 0 lassen, bis die Verstärkungen stehen; zu viel lässt die Achse vorauseilen.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>[VFF] Velocity feed-forward gain</source>
        <translation>[VFF] Geschwindigkeitsvorsteuerung</translation>
    </message>
    <message>
        <source>&lt;p&gt;Adds torque in proportion to acceleration, so that the load&apos;s inertia causes no lag. Raise it until the error while accelerating is smallest; too much overshoots.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Addiert Drehmoment im Verhältnis zur Beschleunigung, sodass die Trägheit der Last kein Nachhinken verursacht. Erhöhen Sie sie, bis der Fehler beim Beschleunigen am kleinsten ist; zu viel schwingt über.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>[AFF] Acceleration feed-forward gain</source>
        <translation>[AFF] Beschleunigungsvorsteuerung</translation>
    </message>
    <message>
        <source>Position control</source>
        <translation>Positionsregelung</translation>
    </message>
    <message>
        <source>&lt;p&gt;Velocity commanded per count of position error: raise it after the velocity gains. Too much overshoots and oscillates, too little lags and is soft.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Vorgegebene Geschwindigkeit je Inkrement Positionsfehler: Erhöhen Sie sie nach den Verstärkungen der Geschwindigkeit. Zu viel schwingt über und pendelt, zu wenig hinkt nach und ist weich.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>[KPP] Position P gain</source>
        <translation>[KPP] P-Verstärkung Position</translation>
    </message>
    <message>
        <source>&lt;p&gt;How much of the setpoint&apos;s velocity goes straight to the velocity control. 100 % follows without lag; less is smoother but lags at speed and can reach [FPT].&lt;/p&gt;</source>
        <translation>&lt;p&gt;Wie viel von der Geschwindigkeit des Sollwerts direkt an die Geschwindigkeitsregelung geht. 100 % folgt ohne Nachlauf; weniger ist ruhiger, hinkt aber bei Tempo nach und kann [FPT] erreichen.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>[PFF] Position feed-forward gain</source>
        <translation>[PFF] Positionsvorsteuerung</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>&lt;p&gt;Shows or hides the feed-forward gains and, on Keta Pro, the torque ripple compensation.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Zeigt oder verbirgt die Vorsteuerungen und bei Keta Pro die Kompensation der Drehmomentwelligkeit.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Show advanced settings</source>
        <translation>Erweiterte Einstellungen zeigen</translation>
    </message>
    <message>
        <source>Displaying advanced parameters. If unsure, leave them disabled or zero. These parameters should be configured after all other parameters have been properly set.</source>
        <translation>Erweiterte Parameter sind sichtbar. Lassen Sie sie im Zweifel ausgeschaltet oder auf null. Diese Parameter werden erst eingestellt, wenn alle anderen richtig stehen.</translation>
    </message>
    <message>
        <source>Torque ripple compensation</source>
        <translation>Kompensation der Drehmomentwelligkeit</translation>
    </message>
    <message>
        <source>&lt;p&gt;Shape, in periods per revolution, of the torque added against cogging. Find it by trying at low speed; &quot;None&quot; switches it off.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Form des Drehmoments gegen Rastmomente, in Perioden je Umdrehung. Finden Sie sie durch Versuche bei niedriger Geschwindigkeit; „Keine“ schaltet ab.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>[TRF1] Cogging compensation function</source>
        <translation>[TRF1] Funktion Rastmomentkompensation</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Constant</source>
        <translation>Konstant</translation>
    </message>
    <message>
        <source>&lt;p&gt;Size of that torque as current; the sign turns it over. Raise it until slow motion is smoothest; too much makes new ripple.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Größe dieses Drehmoments als Strom; das Vorzeichen kehrt es um. Erhöhen Sie sie, bis langsame Bewegung am ruhigsten ist; zu viel macht neue Welligkeit.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>[TRA1] Cogging compensation amplitude</source>
        <translation>[TRA1] Amplitude Rastmomentkompensation</translation>
    </message>
    <message>
        <source> A</source>
        <translation> A</translation>
    </message>
    <message>
        <source>&lt;p&gt;Shape, in periods per revolution, of the correction to the motor&apos;s torque per ampere. Set it after cogging compensation; &quot;None&quot; switches it off.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Form der Korrektur des Motordrehmoments je Ampere, in Perioden je Umdrehung. Nach der Rastmomentkompensation einstellen; „Keine“ schaltet ab.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>[TRF2] Torque uniformity compensation function</source>
        <translation>[TRF2] Funktion Drehmomentkompensation</translation>
    </message>
    <message>
        <source>&lt;p&gt;Size of that correction in percent of the torque commanded; the sign turns it over. Raise it under load until the ripple is smallest.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Größe dieser Korrektur in Prozent des vorgegebenen Drehmoments; das Vorzeichen kehrt sie um. Erhöhen Sie sie unter Last, bis die Welligkeit am kleinsten ist.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>[TRA2] Torque uniformity compensation amplitude</source>
        <translation>[TRA2] Amplitude Drehmomentkompensation</translation>
    </message>
</context>
<context>
    <name>ValueMarks</name>
    <message>
        <source>Edited (1 change)</source>
        <translation>Geändert (1 Änderung)</translation>
    </message>
    <message>
        <source>Edited (%1 changes)</source>
        <translation>Geändert (%1 Änderungen)</translation>
    </message>
    <message>
        <source>File loaded, not applied</source>
        <translation>Datei geladen, nicht angewendet</translation>
    </message>
    <message>
        <source>Nothing edited</source>
        <translation>Nichts geändert</translation>
    </message>
    <message>
        <source>Not saved over power-off</source>
        <translation>Nicht dauerhaft gespeichert</translation>
    </message>
    <message>
        <source>Being saved over power-off</source>
        <translation>Wird dauerhaft gespeichert</translation>
    </message>
    <message>
        <source>Edits not saved over power-off</source>
        <translation>Änderungen nicht dauerhaft</translation>
    </message>
    <message>
        <source>Saved over power-off</source>
        <translation>Dauerhaft gespeichert</translation>
    </message>
    <message>
        <source>Saved over power-off: not known</source>
        <translation>Dauerhaft gespeichert: unbekannt</translation>
    </message>
    <message>
        <source>Where the values live</source>
        <translation>Wo die Werte stehen</translation>
    </message>
    <message>
        <source>Save to drive</source>
        <translation>Im Antrieb speichern</translation>
    </message>
    <message>
        <source>Keeps the applied settings over a power-off.</source>
        <translation>Erhält die angewendeten Einstellungen über das Ausschalten hinweg.</translation>
    </message>
    <message>
        <source>In the drive</source>
        <translation>Im Antrieb</translation>
    </message>
    <message>
        <source>In no drive</source>
        <translation>In keinem Antrieb</translation>
    </message>
    <message>
        <source>Applied before, lost at power-off</source>
        <translation>Vorher angewendet, nur bis zum Ausschalten</translation>
    </message>
    <message>
        <source>In the drive, lost at power-off</source>
        <translation>Im Antrieb, nur bis zum Ausschalten</translation>
    </message>
    <message>
        <source>Not in the drive yet</source>
        <translation>Noch nicht im Antrieb</translation>
    </message>
    <message>
        <source>In no file</source>
        <translation>In keiner Datei</translation>
    </message>
    <message>
        <source>In the file %1</source>
        <translation>In der Datei %1</translation>
    </message>
    <message>
        <source>Edited, not applied</source>
        <translation>Geändert, nicht angewendet</translation>
    </message>
</context>
<context>
    <name>WelcomePage</name>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot;font-size:20pt; font-weight:600;&quot;&gt;Welcome to Velbrin&lt;/span&gt;&lt;br/&gt;Version %VELBRIN_VERSION&lt;/p&gt;&lt;p&gt;Velbrin configures, tunes and starts up Tarnwell servo drives of the Torva, Keta and Keta Pro families over the Zetabus.&lt;/p&gt;&lt;p&gt;&lt;span style=&quot;font-size:13pt; font-weight:600;&quot;&gt;First steps&lt;/span&gt;&lt;/p&gt;&lt;table border=&quot;0&quot; cellspacing=&quot;0&quot; cellpadding=&quot;5&quot;&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;1&lt;/b&gt;&lt;/td&gt;&lt;td&gt;&lt;b&gt;Connect&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Choose the adapter, search the bus and pick your drive. Velbrin then reads all of its settings.&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;2&lt;/b&gt;&lt;/td&gt;&lt;td&gt;&lt;b&gt;Goals&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Say what the axis shall do: control mode, where the setpoint comes from, axis units and motion limits.&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;3&lt;/b&gt;&lt;/td&gt;&lt;td&gt;&lt;b&gt;Machine&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Describe what is bolted on: motor, feedback, homing, brake and limit switches.&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;4&lt;/b&gt;&lt;/td&gt;&lt;td&gt;&lt;b&gt;Tuning&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Set the torque bandwidth, then the velocity gains, then the position gains.&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;5&lt;/b&gt;&lt;/td&gt;&lt;td&gt;&lt;b&gt;Fault&amp;nbsp;limits&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Decide when the drive shall stop by itself to protect people, motor and machine.&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;6&lt;/b&gt;&lt;/td&gt;&lt;td&gt;&lt;b&gt;Testing&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Move the axis with a test stimulus, capture what it does and look at the graphs.&lt;/td&gt;&lt;/tr&gt;&lt;/table&gt;&lt;p&gt;Settings that you change are sent to the drive by &lt;b&gt;Apply settings&lt;/b&gt; and kept over a power-off by &lt;b&gt;Save settings on drive non-volatile memory&lt;/b&gt;. Save them to a file as well, so that a second machine or a spare drive is set up in a minute.&lt;/p&gt;&lt;p&gt;&lt;b&gt;Before anything moves:&lt;/b&gt; keep the emergency stop within reach and people out of the machine. &lt;b&gt;Esc&lt;/b&gt; disables the drive from anywhere in the program.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot;font-size:20pt; font-weight:600;&quot;&gt;Willkommen bei Velbrin&lt;/span&gt;&lt;br/&gt;Version %VELBRIN_VERSION&lt;/p&gt;&lt;p&gt;Mit Velbrin konfigurieren Sie Tarnwell-Servoantriebe der Familien Torva, Keta und Keta Pro über den Zetabus, stimmen sie ab und nehmen sie in Betrieb.&lt;/p&gt;&lt;p&gt;&lt;span style=&quot;font-size:13pt; font-weight:600;&quot;&gt;Erste Schritte&lt;/span&gt;&lt;/p&gt;&lt;table border=&quot;0&quot; cellspacing=&quot;0&quot; cellpadding=&quot;5&quot;&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;1&lt;/b&gt;&lt;/td&gt;&lt;td&gt;&lt;b&gt;Verbinden&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Wählen Sie den Adapter, durchsuchen Sie den Bus und wählen Sie Ihren Antrieb. Velbrin liest dann alle seine Einstellungen.&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;2&lt;/b&gt;&lt;/td&gt;&lt;td&gt;&lt;b&gt;Ziele&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Sagen Sie, was die Achse tun soll: Regelart, Herkunft des Sollwerts, Einheiten der Achse und Bewegungsgrenzen.&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;3&lt;/b&gt;&lt;/td&gt;&lt;td&gt;&lt;b&gt;Maschine&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Beschreiben Sie, was angebaut ist: Motor, Geber, Referenzfahrt, Bremse und Endschalter.&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;4&lt;/b&gt;&lt;/td&gt;&lt;td&gt;&lt;b&gt;Abstimmen&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Stellen Sie die Drehmomentbandbreite ein, dann die Verstärkungen der Geschwindigkeit, dann die der Position.&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;5&lt;/b&gt;&lt;/td&gt;&lt;td&gt;&lt;b&gt;Grenzen&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Entscheiden Sie, wann der Antrieb von selbst anhalten soll, um Menschen, Motor und Maschine zu schützen.&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;6&lt;/b&gt;&lt;/td&gt;&lt;td&gt;&lt;b&gt;Testen&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Bewegen Sie die Achse mit einem Testsignal, zeichnen Sie auf, was sie tut, und sehen Sie sich die Diagramme an.&lt;/td&gt;&lt;/tr&gt;&lt;/table&gt;&lt;p&gt;Einstellungen, die Sie ändern, sendet &lt;b&gt;Einstellungen anwenden&lt;/b&gt; an den Antrieb; &lt;b&gt;Einstellungen dauerhaft im Antrieb speichern&lt;/b&gt; erhält sie über das Ausschalten hinweg. Speichern Sie sie auch in eine Datei, damit eine zweite Maschine oder ein Ersatzantrieb in einer Minute eingerichtet ist.&lt;/p&gt;&lt;p&gt;&lt;b&gt;Bevor sich etwas bewegt:&lt;/b&gt; Halten Sie den Not-Halt in Reichweite und Menschen von der Maschine fern. &lt;b&gt;Esc&lt;/b&gt; sperrt den Antrieb von überall im Programm aus.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
</context>
<context>
    <name>busyDialog</name>
    <message>
        <source>Busy</source>
        <translation>Beschäftigt</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;Velbrin is working...&lt;br/&gt;Please wait few seconds&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;Velbrin arbeitet...&lt;br/&gt;Bitte warten Sie einige Sekunden&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
</context>
<context>
    <name>firmwareUpgradeDlg</name>
    <message>
        <source>Firmware upgrade</source>
        <translation>Firmware-Update</translation>
    </message>
    <message>
        <source>Upgrade messages</source>
        <translation>Meldungen des Updates</translation>
    </message>
    <message>
        <source>Upgrade progress</source>
        <translation>Fortschritt des Updates</translation>
    </message>
    <message>
        <source>Reset device parameters to factory state</source>
        <translation>Geräteparameter auf Werkseinstellung zurücksetzen</translation>
    </message>
    <message>
        <source>Open file &amp;&amp; start upgrade</source>
        <translation>Datei öffnen &amp;&amp; Update starten</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>overrideParams</name>
    <message>
        <source>Override parameters</source>
        <translation>Parameter überschreiben</translation>
    </message>
    <message>
        <source>Parameter override table</source>
        <translation>Tabelle der überschriebenen Parameter</translation>
    </message>
    <message>
        <source>Param address</source>
        <translation>Parameteradresse</translation>
    </message>
    <message>
        <source>Override value</source>
        <translation>Überschriebener Wert</translation>
    </message>
    <message>
        <source>&lt;p&gt;Register that receives the first override value at every apply; 0 leaves the row unused. Only for registers without a control of their own; a wrong one can stop the drive.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Register, das bei jedem Anwenden den ersten Wert erhält; 0 lässt die Zeile unbenutzt. Nur für Register ohne eigenes Bedienelement; ein falsches kann den Antrieb anhalten.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Param address 1</source>
        <translation>Parameteradresse 1</translation>
    </message>
    <message>
        <source>&lt;p&gt;Raw value written to the first override register, without scaling. It is written after everything else and so wins over the pages.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Rohwert, der unskaliert in das erste Register geschrieben wird. Er wird nach allem anderen geschrieben und gewinnt so gegen die Seiten.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Override value 1</source>
        <translation>Überschriebener Wert 1</translation>
    </message>
    <message>
        <source> raw</source>
        <translation> roh</translation>
    </message>
    <message>
        <source>&lt;p&gt;Register that receives the second override value at every apply; 0 leaves the row unused. Only for registers without a control of their own; a wrong one can stop the drive.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Register, das bei jedem Anwenden den zweiten Wert erhält; 0 lässt die Zeile unbenutzt. Nur für Register ohne eigenes Bedienelement; ein falsches kann den Antrieb anhalten.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Param address 2</source>
        <translation>Parameteradresse 2</translation>
    </message>
    <message>
        <source>&lt;p&gt;Raw value written to the second override register, without scaling. It is written after everything else and so wins over the pages.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Rohwert, der unskaliert in das zweite Register geschrieben wird. Er wird nach allem anderen geschrieben und gewinnt so gegen die Seiten.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Override value 2</source>
        <translation>Überschriebener Wert 2</translation>
    </message>
    <message>
        <source>&lt;p&gt;Register that receives the third override value at every apply; 0 leaves the row unused. Only for registers without a control of their own; a wrong one can stop the drive.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Register, das bei jedem Anwenden den dritten Wert erhält; 0 lässt die Zeile unbenutzt. Nur für Register ohne eigenes Bedienelement; ein falsches kann den Antrieb anhalten.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Param address 3</source>
        <translation>Parameteradresse 3</translation>
    </message>
    <message>
        <source>&lt;p&gt;Raw value written to the third override register, without scaling. It is written after everything else and so wins over the pages.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Rohwert, der unskaliert in das dritte Register geschrieben wird. Er wird nach allem anderen geschrieben und gewinnt so gegen die Seiten.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Override value 3</source>
        <translation>Überschriebener Wert 3</translation>
    </message>
    <message>
        <source>Display custom parameter in status page</source>
        <translation>Weiteren Parameter in der Statusseite zeigen</translation>
    </message>
    <message>
        <source>&lt;p&gt;Register whose raw value is shown under the fault register from the next apply on; 0 shows none.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Register, dessen Rohwert ab dem nächsten Anwenden unter dem Störungsregister steht; 0 zeigt keines.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Param address to display</source>
        <translation>Adresse des Parameters</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keiner</translation>
    </message>
    <message>
        <source>Click apply on main window to activate settings</source>
        <translation>Die Einstellungen werden mit „Anwenden“ im Hauptfenster wirksam</translation>
    </message>
</context>
<context>
    <name>selectBusNode</name>
    <message>
        <source>Connect device</source>
        <translation>Gerät verbinden</translation>
    </message>
    <message>
        <source>List of found &amp; powered drives in the Zetabus bus</source>
        <translation>Liste der gefundenen &amp; eingeschalteten Antriebe am Zetabus</translation>
    </message>
    <message>
        <source>Drives found</source>
        <translation>Gefundene Antriebe</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Choose device to connect. Device doesn&apos;t appear? See &lt;a href=&quot;https://wiki.tarnwell.example/wiki/Device_connection_troubleshooting&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#0057ae;&quot;&gt;troubleshooting&lt;/span&gt;&lt;/a&gt;.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Wählen Sie das Gerät. Ihres erscheint nicht? Siehe &lt;a href=&quot;https://wiki.tarnwell.example/wiki/Device_connection_troubleshooting&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#0057ae;&quot;&gt;Fehlersuche&lt;/span&gt;&lt;/a&gt;.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
</context>
</TS>
