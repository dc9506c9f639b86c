<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>ActWatch</name>
    <message>
        <source>Enabled: the motor is powered</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not enabled: the drive has a fault: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The enable was sent, but the motor is not powered</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The enable was sent, but the motor is not powered. Look at: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Faults cleared</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not cleared: %1. The cause is still there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Capture armed: it waits for its trigger</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Capture finished</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Capture called off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The capture has failed: the drive&apos;s record could not be read</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Analysis</name>
    <message>
        <source>There is not enough motion in this record: move at least some hundred counts.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The record holds motion in one direction only: move forth and back.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The current stood in its limit (MMC) for much of the move: move more gently.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Torque achieved and position achieved have to be captured together.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is not enough motion in this record: move further, or capture at a higher sample rate.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The axis does not accelerate in the direction of its torque: check the feedback direction, and whether anything else moves it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Parts of the move contradict each other: the axis is springy or has backlash, or the record is too noisy. One inertia does not describe it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The speed that follows from the recorded torque is not the speed that was measured: one inertia with friction does not describe this axis.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rise time, 10 to 90 %</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time to 90 %</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Overshoot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settling time, within 2 %</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Peak tracking error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RMS tracking error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Limited by MMC for</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ringing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resolution of the ringing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Acceleration per torque</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Slow motion forward takes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Slow motion backward takes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dry friction</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hanging load</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Viscous friction</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Acceleration feed-forward that follows [AFF]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Velocity feed-forward that follows [VFF]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not defined: a setpoint and what was achieved have to be captured together.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not defined: the record holds values that are no numbers.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not defined: 90 % of the step is not reached within the record.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not defined: the axis was on its way already when the setpoint changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not settled: it is more than 2 % away at the end of the record.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not settled: the record ends too soon after 2 % was reached.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not defined: the final value is not reached within the record.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not defined: it is still moving away when the record ends.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not defined: the torque setpoint was not captured.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not defined: the current limit (MMC) is not known.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not defined: the tail does not ring.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not defined: the setpoint does not change in this record.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not defined: the setpoint ends where it began.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ApplyBox</name>
    <message>
        <source>Apply settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 settings of the drive will change:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No setting differs from the drive&apos;s.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One setting of the drive will change:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Back, change nothing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Changes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Setting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The drive has</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It will get</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ApplyDesk</name>
    <message>
        <source>1 change</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 changes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply settings (parameters changed)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply settings [Alt+A]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing applied: the settings of this drive have not been read yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing saved: the settings of this drive have not been read yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loaded %1. Nothing of it is in the drive before it is applied</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Some paramets have been changed since last Apply. Changed settings won&apos;t take effect before Apply.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Velbrin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do you wish to apply changes to drive now?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do you wish to apply changes to drive now? You may also choose Abort to go back.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Continue without applying</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Some paramets have been changed since last Save to drive. Last changes will be lost on drive power-off if not saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do you wish to save active settings to drive now? You may also choose Abort to go back.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Discard changes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save to drive now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save settings to file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drive settings (*.drc)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This file is saved without a drive: what nobody has typed into it are start values of this program, not the settings of a drive.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open settings file</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CaptureAid</name>
    <message>
        <source>Call off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ends the waiting for a trigger. What the drive does goes on.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CaptureSaving</name>
    <message>
        <source>Columns for spreadsheets, with commas and units (*.csv)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Portable Network Graphics (*.png);;Raw data as text file (*.csv)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Page that can be opened again, for any browser (*.html)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ConnectPage</name>
    <message>
        <source>Connect: find the drive and take control</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connection to drive</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Communication interface device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Serial port of the bus adapter. A port that is not listed can be typed.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>COM3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>COM2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>COM1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zetabus2 USB adapter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Lists the serial ports again, for an adapter that has been plugged in meanwhile.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Refresh list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Searches the bus for drives and lets you choose one. Shortcut Alt+O&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connect to drive</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Ends the connection; the drive keeps doing what it does. Shortcut Alt+D&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disconnect from drive</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connected device info</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Type of the connected drive, which decides what it can do.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>N/A</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>HW type ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Serial number, as on the drive&apos;s type plate.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Version of the drive&apos;s motion firmware.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TarnwellCore firmware version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Version of the firmware in the I/O processor.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>I/O side firmware version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Exact build of the firmware, in hexadecimal; quote it when asking for support.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Firmware revision ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drive controls</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Gives the software enable. The motor is powered as soon as the enable input is on too.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Soft enable drive</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Enables the drive without waiting for the enable input. The motor is powered at once: make sure that nobody is in the machine.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Force enable drive</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Takes the power off the motor. Esc does this from anywhere in the program.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disable drive [Esc]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Clears the faults that are shown on the Testing page. Remove their cause first.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Clear drive faults  [Alt+R]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Keeps the applied settings over a power-off.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save settings on drive non-volatile memory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Restarts the drive with the settings of its non-volatile memory. Needed after Permanent stop.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restart drive</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Restarts the drive into firmware-upgrade mode, so that new firmware can be installed.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Install firmware</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Writes the settings of all pages to a drive settings file. Shortcut Ctrl+S&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save settings to file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Fills the pages from a drive settings file. Nothing reaches the drive before Apply. Shortcut Ctrl+O&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load settings from file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Searching devices...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (bootloader)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not known in firmware upgrade mode</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Connection</name>
    <message>
        <source>Connect failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to connect. Possibly incompatible COM adapter selected or device is already used by another application</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connected to device in firmware upgrade mode (bootloader version %1). To begin upgrading, select file from the button below. Upgrading starts immediately after file opened.&lt;br&gt;&lt;br&gt; &lt;b&gt;Backup&lt;/b&gt; your settings before upgrade as all parameters will be reset to defaults!&lt;br&gt;&lt;br&gt;&lt;b&gt;Ensure&lt;/b&gt; that you have a firmware file designed for your hardware type and version!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;br&gt;&lt;b&gt;Note:&lt;/b&gt; The device seem to have some fault bits active (%1 hex%2). This could mean that the last upgrade of firmware has failed, or internal memory of device has corrupted. If this happens randomly, check voltage supply stability and EMI noise. You may continue FW upgrade normally.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> = chip firmware memory checksum mismatch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to connect. The adapter was pulled out during the search: plug it in and search again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The bus is never quiet, so no drive can be found on it. Check the wiring and that the port belongs to a Zetabus adapter.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No scope channels selected. Select at least one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start capture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scope waiting..</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Downloading..</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The drive refused to be enabled.&lt;br&gt;Device errors: &lt;br&gt;%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The drive refused to be enabled by force.&lt;br&gt;Device errors: &lt;br&gt;%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The drive refused to save its settings to flash.&lt;br&gt;Device errors: &lt;br&gt;%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The drive refused to start homing.&lt;br&gt;Device errors: &lt;br&gt;%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The drive refused the setpoint %1.&lt;br&gt;Device errors: &lt;br&gt;%2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This drive cannot be restarted in firmware upgrade mode by a command.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Measure function is available only in KETA drive models</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Measure function requires newer firmware version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Measurement failed. Ensure that all required conditions are met. See &lt;i&gt;%1&lt;/i&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;b&gt;The drive may still be powered.&lt;/b&gt; Esc tries to disable it; the sure way is the machine&apos;s own stop.&lt;br&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No device in firmware upgrade mode is connected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file does not contain a firmware</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 firmware file loaded successfully</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;b&gt;All done with success!&lt;/b&gt; Drive has been started with one-time bus address of 16 and you may connect to it now via Connect button. To return using normal device address, power off, change device address and power up again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flashing I/O CPU firmware failed. Power off, reconnect and try again. Ensure that firmware file is compatible with your device.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flashing firmware failed. Power off, reconnect and try again. Ensure that firmware file is compatible with your device.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flashing TarnwellCore firmware failed. Power off, reconnect and try again. Ensure that firmware file is compatible with your device.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The new firmware was written, but the drive has not confirmed that it starts it. Power off, reconnect and try again if it does not run.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Errors occurred: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;b&gt;STEP1: I/O side firmware&lt;/b&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;b&gt;Uploading firmware&lt;/b&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Erasing IO side firmware on device...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Erasing existing firmware on device...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Done. Uploading new IO side firmware...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Done. Uploading new firmware...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Done!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The installed firmware did not pass device&apos;s verification (possible checksum error or icompatible FW)! Flashing failed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write protecting flash.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>I/O side flash contents verified and passed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Device memory contents verified and passed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;b&gt;STEP2: TarnwellCore firmware&lt;/b&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The FW file does not contain TarnwellCore firmware, previously installed TarnwellCore FW will remain intact</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flashing TarnwellCore firmware (takes about 20 secs)...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TarnwellCore flash contents verified and passed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Uploaded bytes: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The drive&apos;s answers contradict each other: try again, and check that no two drives have the same address.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was not written: register %2 is a command to the drive and not a setting.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was not written: %2 in register %3 is more than the bus can carry.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not available in firmware upgrade mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The drive did not confirm the disable: it may still be powered. Esc tries again; the sure way is the machine&apos;s own stop.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Peak current [MMC]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Continuous current [MCC]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Motor thermal model [MTC]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drive temperature</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Supply voltage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unknown (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Torque setpoint [A]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Torque achieved [A]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Velocity setpoint</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Velocity achieved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Position setpoint</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Position achieved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tracking error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output voltage [%]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>HV bus voltage [VDC]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PWM1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PWM2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PWM3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Debug 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Debug 2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flux current</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flux voltage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;br/&gt;&lt;br/&gt;Note: it&apos;s also possible that this message is caused by connection instability. For troubleshooting, see %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;br/&gt;&lt;br/&gt;&lt;b&gt;Device could not be restarted in firmware upgrade mode: it did not confirm the command and is probably still in normal mode. Try connecting again.&lt;/b&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unsupported device model connected. Try upgrading Velbrin to latest version. Connected device ID %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unsupported device connected, try upgrading Velbrin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zetabus protocol version too old, not supported by this software version. Check older Velbrin versions from %1. Connected ZBV2 Version: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zetabus protocol version too new, not supported by this software version. Check for Velbrin upgrades. Connected ZBV2 Version: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Device firmware version too new, not supported by this software version. Check for Velbrin upgrades from %1. Connected FW version: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Device firmware version too old, not supported by this software version. Check for firmware upgrades at %1. Connected FW Version is %2 and the olders supported FW version is %3.&lt;br/&gt;&lt;br/&gt;You &lt;i&gt;may&lt;/i&gt; need to use older Velbrin version to upgrade firmware. Old Velbrin release can be found from %4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;br/&gt;&lt;br/&gt;&lt;b&gt;Device now has been restarted in firmware upgrade mode. Try connecting again and installing a newer firmware to it.&lt;/b&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Device TarnwellCore firmware version too new, not supported by this software version. Check for Velbrin upgrades from %1. Connected TC FW version: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Device TarnwellCore firmware version too old, not supported by this software version. Check for firmware upgrades at %1. Connected TC FW Version is %2 and the olders supported TC FW version is %3.&lt;br/&gt;&lt;br/&gt;You &lt;i&gt;may&lt;/i&gt; need to use older Velbrin version to upgrade firmware. Old Velbrin release can be found from %4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;br/&gt;&lt;br/&gt;&lt;b&gt;Device now has been restarted in firmware upgrade mode. Try connecting again and installing a newer firmware to it&lt;/b&gt;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connected device firmware version is outdated, an upgrade is recommended. Download the latest FW from &lt;i&gt;%1&lt;/i&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bootloader version too new, not supported by this software version. Check for Velbrin upgrades. Connected BL Version: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bootloader version too old, not supported by this software version. Check older Velbrin versions from %1. Connected BL Version: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid comm task</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>* NoDevice (interface)&lt;br&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>* InvalidParameter (API)&lt;br&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>* Communication (cheksum mismatch)&lt;br&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>* DataLegth (timeout or app error)&lt;br&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>* BusError&lt;br&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>* Command fail (NACK)&lt;br&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>* Invalid param address&lt;br&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>* Invalid param value&lt;br&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>* Value too high&lt;br&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>* Value too low&lt;br&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Occurred while setting parameter: name=%1, addr=%2, GUI value=%3, HW value=%4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Communication error, disconnected.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Communication error flags: &lt;br&gt;%1&lt;br&gt;Disconnected. See troubleshooting at &lt;a href=&quot;%2&quot;&gt;%2&lt;/a&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;br&gt;Device errors: &lt;br&gt;%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The drive did not answer: check its power and the cable.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The drive&apos;s answer came damaged: check the cable, its shield and the termination.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The port is open, but nobody answered at address %1: check the drive&apos;s power, its address and the cable.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Something answered at address %1, but damaged: check the cable, its shield and the termination.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no port %1: check that the adapter is plugged in.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no permission to use %1: ask for membership in the group that owns it, often &quot;dialout&quot;, and log in again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is in use by another program.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is not a serial port.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be opened: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The drive refused a write; the connection goes on.&lt;br&gt;Device errors: &lt;br&gt;%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;br&gt;This drive: %1 to %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writing broke off: it is not sure that any of the settings reached the drive.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writing broke off: part of the settings reached the drive. The last that surely did is %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The drive did not confirm that it was enabled, so it was disabled again. It shows that it is not enabled.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The drive did not confirm that it was enabled, so a disable was sent. It shows that it is still enabled: use the machine&apos;s own stop.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The drive did not confirm that it was enabled, and does not answer to a disable either: it may be enabled. Use the machine&apos;s own stop.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The drive at address %2 on %1 was disabled without a connection. It shows that it is not enabled.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The drive at address %2 on %1 answers, but shows that it is still enabled: use the machine&apos;s own stop.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The drive at address %2 on %1 did not confirm that it was disabled: it may still be powered. Use the machine&apos;s own stop.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The drive at address %2 on %1 could not be told to disable: it may still be powered. Use the machine&apos;s own stop.&lt;br&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Initialized</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error recovering</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tracking error warn</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Target reached</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Run</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Homing active</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Braking</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Permanent stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Voltages good</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fault stopped</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ready for use</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>STO active</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Over velocity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hardware</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Over temperature</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Feedback</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Over current</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal comm error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Power stage forced off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Under voltage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Over voltage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Motion range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Firmware error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Init</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Motion</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zetabus</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GPI 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GPI 2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GPI 3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GPI 4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GPI 5</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GPI 6</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>HSIN 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>HSIN 2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ANA1 as digital</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ANA2 as digital</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ENC A</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ENC B</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ENC C</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ENC D</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hall U</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hall V</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hall W</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Soft enable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Phys enable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pos feed enable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Neg feed enable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Home switch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear faults</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>HV bus voltage&amp;nbsp;&amp;nbsp;%1 VDC&lt;br&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Device temperature&amp;nbsp;&amp;nbsp;%1 &amp;deg;C&lt;br&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Actual current limit&amp;nbsp;&amp;nbsp;&amp;plusmn;%1 A&lt;br&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last limit reason&amp;nbsp;&amp;nbsp;%1&lt;br&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output current&amp;nbsp;&amp;nbsp;%1 A&lt;br&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Velocity feedback&amp;nbsp;&amp;nbsp;%1 r/s&lt;br&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Velocity feedback (raw)&amp;nbsp;&amp;nbsp;%1&lt;br&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Position feedback&amp;nbsp;&amp;nbsp;%1&lt;br&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Setpoint value&amp;nbsp;&amp;nbsp;%1&lt;br&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;br&gt;Fault location ID 1 %1 &lt;a href=%2&gt;?&lt;/a&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;br&gt;Fault location ID 2 %1 &lt;a href=%2&gt;?&lt;/a&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Debug %1&amp;nbsp;&amp;nbsp;%2&lt;br&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Param %1&amp;nbsp;&amp;nbsp;%2&lt;br&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;br&gt;&lt;font style=&quot;color:#e00&quot;&gt;&lt;b&gt;!&lt;/b&gt; = reason for inactivity&lt;/font&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Analog in 1&amp;nbsp;&amp;nbsp;%1 V &lt;br&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Analog in 2&amp;nbsp;&amp;nbsp;%1 V &lt;br&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Analog Enc A&amp;nbsp;&amp;nbsp;%1 V &lt;br&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Analog Enc B&amp;nbsp;&amp;nbsp;%1 V &lt;br&gt;</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ControlModeRule</name>
    <message>
        <source>Velbrin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drive control mode changed to position control </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Current position is %1, thus using setpoint commands may cause unexpected motion. Do you want to reset position feedback and setpoint values to zero?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Don&apos;t reset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Never reset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Always reset</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DisableWatch</name>
    <message>
        <source>The disable is not confirmed: the drive may still be powered. Use the machine&apos;s hardware stop.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No drive is connected, so none was disabled. Use the machine&apos;s hardware stop if one moves.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No drive is connected: trying to disable the last one all the same...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The drive is enabled again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disabled after %1 ms</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The disable is not confirmed: the connection was lost. The drive may still be powered. Use the machine&apos;s hardware stop.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Disclaimer</name>
    <message>
        <source>Velbrin starting up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Welcome to Velbrin servo drive configuration software!&lt;h3&gt;Important safety information&lt;/h3&gt;The most important thing while operating a servo drive is knowing the electrical and mechanical risks and hazards involved. If unsure about the dangers involved, don&apos;t use this software or it&apos;s associated hardware.&lt;br&gt;&lt;br&gt;Only a person with sufficient electrical and machinery safety skills may install the devices configured by this software.&lt;br&gt;&lt;br&gt;Tarnwell Devices or its personnell (later Producers) are not responsible of damages caused by inproper usage.&lt;br&gt;&lt;h3&gt;Limited warranty and liability&lt;/h3&gt;Producer is not liable of damages, losses or other consequences caused directly or indirectly by Tarnwell Devices products (later Products). User&apos;s responsibility is to ensure safety of system where Products are being utilized. Producer&apos;s warranty is limited to cover Products only and Producers will not cover any of the potential harms that may be caused by Products even in the case of severe Product malfunctioning or defects.&lt;br&gt;&lt;br&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By clicking &lt;i&gt;I Agree&lt;/i&gt; you are agreeing these terms and conditions.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disagree</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>I Agree</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Velbrin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This software will exit as Disagree button was clicked. You may contact Tarnwell Devices to obtain customized agreement.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quit</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DriveBoard</name>
    <message>
        <source>%1 loaded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saving to the drive</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved to the drive: the settings survive a power-off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not saved to the drive: it did not take the command</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved to the file %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DriveDesk</name>
    <message>
        <source>Nothing to disable: the drive is in firmware upgrade mode, which drives no motor</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EditHistory</name>
    <message>
        <source>There is no edit to undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Undone: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no edit to do again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Done again: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EditMarks</name>
    <message>
        <source>The field was changed and not applied. A click brings the drive&apos;s value back.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>drive: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 edited, the drive has %2: take the edit back</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ErrorWindow</name>
    <message>
        <source>Velbrin</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FaultLimitsPage</name>
    <message>
        <source>Fault limits: when the drive stops by itself</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Electrical limits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Current at which the drive shuts off at once. Keep it 20 to 60 % over [MMC]; too near gives false alarms, too far protects late.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[FOC] Over current fault threshold</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> A</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Supply voltage at which the drive shuts off, mostly while braking. Set it over the highest normal supply and under what supply and drive stand.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[FOV] Over voltage fault threshold</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> V</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Supply voltage under which the drive shuts off. Set it 20 to 40 % under the normal supply; too low weakens protection, too high trips on sags.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[FUV] Under voltage fault threshold</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Motion fault limits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Largest accepted distance between setpoint and position. Too small trips on quick moves and steps, too large lets a jammed axis push on for long.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[FPT] Position tracking error threshold</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> counts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Largest accepted difference between commanded and measured velocity. Too small trips while accelerating, too large notices a runaway late.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[FVT] Velocity tracking error threshold</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> cnt/cycle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;How long a tracking error must last to become a fault; 0 means at once. Raise it to ride through short overloads; too long lets a jammed axis push on.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[FFT] Tracking fault delay</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Measured velocity at which the drive shuts off. Keep it at least 12 % over [CVL] and under what the machine stands.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[FEV] Over speed fault threshold</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Largest movement accepted while the drive finds the rotor angle; 0 switches the check off. Set it a little over one pole pair, 8 × [FBR] / [MPC] counts; less trips at a normal start.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[FMO] Motion fault threshold</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recovery</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Velocity at which the axis returns to its setpoint when it is enabled, or recovers from a fault, away from it. Keep it low, as this move begins without a command.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[CRV] Recovery velocity limit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> cnt/cycle/DIV</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FirmwareDesk</name>
    <message>
        <source>Open firmware file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Firmware file (*.tdf)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Velbrin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A firmware upgrade is running.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Closing now leaves the drive without working firmware. It then starts in firmware upgrade mode, where a new upgrade can rescue it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep upgrading</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close anyway</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Some recently changed parameters or faults require drive restart (Permanent stop state is on). If this repeats, check parameters and device status page.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do you wish to restart device now?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Don&apos;t restart</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restart drive now</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FirmwareFile</name>
    <message>
        <source>Can&apos;t open file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unknown file type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unsupported FW file version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Selected firmware file not meant for the connected device type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File corrupted</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>GainsPanel</name>
    <message>
        <source>Gains</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Gives the drive all changed settings, as the button under the pages does.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>GoalsPage</name>
    <message>
        <source>Goals: what the axis shall do</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Control mode and setpoint</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;What the setpoint commands: position, velocity or torque. Disable the drive before changing it, because the same setpoint number means something else in every mode.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[CM] Control mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Position control</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Velocity control</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Torque control</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Where the setpoint comes from; &quot;Serial only&quot; takes it from the bus and suits the Testing page. Try a physical input first with low limits, as the axis follows it as soon as the drive is enabled.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[CRI] Setpoint input</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Serial only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pulse and direction</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quadrature (A and B)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Analog input 1 (±10 V)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Analog input 2 (±10 V)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Shifts the zero of an analog setpoint, in percent of full scale. Adjust it until the axis stands still at zero input; a wrong value makes it creep or push.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[CAO] Setpoint offset nulling</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> %</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;The setpoint is multiplied by this and divided by [DIV]; the quotient is the counts moved per setpoint unit. Raise it when the controller cannot send steps fast enough; too much makes every step coarse.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[MUL] Setpoint multiplier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Divides the setpoint, and is the resolution of velocities and accelerations, which count in 1/DIV counts per cycle. More is finer; after a change set [CVL], [CAL], [CRV], [HMV] and [HMA] anew.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[DIV] Setpoint divider</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Counts that the axis moves for one setpoint unit, as a fraction and in percent.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Setpoint scaling factor:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Takes the sign of the setpoint from the direction input. For controllers that give a one-sided analog signal with a direction line; leave it off otherwise.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[CED] Enable direction input</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Smooths a coarse or jittery setpoint, which makes the motor quieter. It delays the motion by a few milliseconds, so leave it off where several axes must follow a contour.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[CIS] Setpoint smoothning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Axis and units</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Kind of axis and the unit in which machine values are shown beside the fields. It changes the display only, never the motion.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[AXT] Axis type &amp;&amp; units</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Linear [mm]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Linear [µm]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Linear [inch]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rotary [revolution]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rotary [degrees]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Travel per motor revolution in the chosen unit: the lead of a screw, or 360 divided by the gear ratio. A wrong value shows wrong machine values but does not change the motion.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[AXS] Axis scale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Swaps the positive direction of the whole axis. Use it when a well tuned axis runs the wrong way; it does not cure a runaway, see [FBI].&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[AXI] Invert direction</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Motion limits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Highest velocity that is commanded; in velocity control also the velocity at full-scale setpoint. Keep it at least 10 % under [FEV]; too little makes the axis fall behind fast setpoints.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[CVL] Velocity limit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> cnt/cycle/DIV</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Highest acceleration that is commanded. Too much drives the current to its limit and overshoots, too little makes moves slow and the axis lag behind quick setpoints.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[CAL] Acceleration limit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> cnt/cycle²/DIV</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Deceleration when the drive stops by itself, as at a limit switch; 0 uses [CAL]. Too little lets the axis run far, too much can cause over voltage.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[CSD] Stop deceleration limit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enabling and bus</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;The drive starts only after a software enable command, besides the enable input. Leave it on while setting up; switch it off for a machine that must start without a PC.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[CEN] Require software enable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;The enable input must keep pulsing, so that a hung controller stops the drive. Without a controller that sends these pulses the drive never enables.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[CEP] Require pulsing on enable input</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Added to the address that is set on the drive itself, from the next restart on. Use it when two drives have the same address; the bus search finds addresses 1 to 20 only.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[ZBO] Bus address offset</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HelpBrowser</name>
    <message>
        <source>Save as PDF</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loading of online documentation Wiki failed (no internet?), displaying an offline copy. It is advised to check out latest documentation at &lt;a&gt;%1&lt;/a&gt;.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HelpView</name>
    <message>
        <source>the plot could not be drawn in %1 s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the plot is too large for a picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error writing graphs to file %1&lt;br&gt;%2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its program %1 is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this system does not allow its sandbox (user name spaces)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is switched off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;h3&gt;Help and plots cannot be shown&lt;/h3&gt;The browser engine cannot start: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The picture of the graphs was given up: the browser engine was started again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it closed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>status %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;h3&gt;The view has stopped&lt;/h3&gt;The browser engine behind help and plots has ended unexpectedly (%1). The connection to the drive is not affected.&lt;p&gt;&lt;a href=&quot;restart:&quot;&gt;Start it again&lt;/a&gt;&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;The last capture can be saved as text: &lt;a href=&quot;tdext://exportpdf&quot;&gt;Save as file&lt;/a&gt;&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error writing graphs to file %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no plot is shown to make a picture of</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MW</name>
    <message>
        <source>Velbrin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Sends the settings of all pages to the drive. They stay in force until it is switched off; &quot;Save settings on drive non-volatile memory&quot; on the Connect page keeps them.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply settings [Alt+A]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Offline copy of the documentation. The online documentation may be newer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help and graphs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tool bar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Parameter overrides</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+P</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not while the drive is in firmware upgrade mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not on this model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This info updated only after Connect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;b&gt;Warning:&lt;/b&gt; operating Torva under 70 VDC may reduce it&apos;s short circuit protection sensitivity making it vulnerable to permanent hardware damage in the case of short circuit.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;b&gt;Warning:&lt;/b&gt; operating Keta under 20 VDC may reduce it&apos;s short circuit protection sensitivity making it vulnerable to permanent hardware damage in the case of short circuit.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Homing hard stop threshold [HMH] is near or above position tracking error threshold [FPT]. This means that tracking error fault might occur before hard stop detection. Recommendation: reduce HMH or increase FPT.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Over speed fault threshold [FEV] is near or less than Velocity limit [CVL]. This means that over speed fault might occur during normal operation. Recommendation: reduce CVL or increase FEV.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Parameter sanity check warnings:&lt;ul&gt;%1&lt;/ul&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>mm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>µm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>inch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>inches</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>revolution</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>revolutions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>degree</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>degrees</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Setpoint scaling factor:
%1/%2=%3%</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Program started</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restarting device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The graphs are being written; the window closes when that is done</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set Abs 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set Inc 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set Abs 2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set Inc 2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Communication interface device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Messages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help [F1]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Searching devices: address %1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[%1] is not shown: this model lacks it, or other settings leave it without effect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[%1] is not on this model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drives found: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Welcome!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Goals</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Machine</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tuning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fault limits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Testing</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MachinePage</name>
    <message>
        <source>Machine: motor, feedback, homing and brake</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Motor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Kind of motor connected. A wrong type gives no torque, rough running or faults at the first enable.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[MT] Motor type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Brush DC</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>2 phase AC or BLDC</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>3 phase AC or BLDC</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stepping motor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A stepping motor needs no pole count, Hall sensors or thermal time constant: it moves with [MMC] and rests with [MCC].</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Number of magnet poles, twice the pole pairs; take it from the motor&apos;s data sheet. A wrong count gives weak torque, cogging or a runaway.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[MPC] Pole count</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> poles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an even number of poles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Resistance between two motor wires; measure it or take it from the data sheet. Too high a value makes the torque control noisy, too low makes it slow.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[MR] Motor resistance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Ω</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Inductance between two motor wires; measure it or take it from the data sheet. Too high a value makes the torque control sing or trip over current, too low makes it slow.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[ML] Motor inductance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> mH</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Measures the connected motor and fills [MR] and [ML]. The motor gets current for some seconds; the drive must be disabled.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Measure resistance &amp;&amp; inductance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Current (peak of sine) that the motor stands without end: rated RMS current × 1.41. Too much overheats the motor, too little makes it weak after a while.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[MCC] Continuous current</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> A</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Largest short-time motor current (peak of sine), and the full-scale setpoint in torque control. Too much can damage the motor, too little limits acceleration.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[MMC] Peak current</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Time in which the motor reaches 63 % of its final temperature; it sets how long the current may stay above [MCC]. Too long overheats the motor, too short limits the current early.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[MTC] Thermal time constant</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>until 63&#xa0;% of its final temperature</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Highest speed that motor and machine allow, used for choosing a fitting [DIV]. It limits nothing by itself; set [CVL] for that.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[MMS] Maximum speed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> rpm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Feedback</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Sensor that measures the position. Choose what is wired; a wrong device gives a Feedback fault or no motion.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[FBD] Position feedback device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quadrature encoder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SinCos encoder, 16x interpolation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SinCos encoder, 64x interpolation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SinCos encoder, 256x interpolation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resolver</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Serial encoder (BiSS-C)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Lines per revolution; a revolution is four times as many counts. For other sensors enter counts per revolution / 4; a wrong value gives wrong speeds and, on AC motors, weak torque or a runaway.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[FBR] Feedback device resolution</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> lines/rev</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 line = 4 counts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Reverses the counting direction of the position sensor. Change it when the motor runs away at the first enable; set wrongly, the axis is never stable.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[FBI] Invert feedback direction</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Hall sensors tell the rotor angle at power-on, so that no searching movement is needed. Try the other polarity if the motor jerks or an Init fault comes at the first enable.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[FBH] Hall sensors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enabled (non-inverted)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enabled (inverted)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Second sensor, on the motor shaft, when the position sensor sits on the load. Leave it at the first choice with one sensor.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[FB2D] Velocity feedback device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Same as position feedback device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Lines per motor revolution of the second sensor. A wrong value scales every velocity and detunes the loops.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[FB2R] Velocity feedback resolution</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Reverses the counting direction of the second sensor. Change it when the axis runs away only with two sensors.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[FB2I] Invert velocity feedback direction</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Inverted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Homing and soft limits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Whether and when the axis looks for its home position. With power-on homing it moves as soon as it is enabled.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[HME] Homing enabled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Homing on external command</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Homing on power-on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Level at which the home switch counts as reached. Wrong polarity ends the search at once or runs past the switch.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[HMS] Home switch polarity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No home switch search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Negative</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Positive</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Goes on to the encoder&apos;s index pulse, which repeats far better than a switch or a stop. Search away from the stop; needs an encoder with index.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[HMI] Index pulse search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No index pulse search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Negative direction</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Positive direction</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Velocity of the search; a negative value searches in negative direction. Too fast repeats badly and hits the stop hard, too slow only takes time.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[HMV] Homing velocity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> cnt/cycle/DIV</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Acceleration while homing. Too much shakes the axis and can look like a hard stop, too little overruns the switch.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[HMA] Homing acceleration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> cnt/cycle²/DIV</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Tracking error at which homing takes the axis to stand at a hard stop; 0 switches this off. Keep it under 3/4 of [FPT]; too small stops at friction, too large presses hard.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[HMH] Homing hard stop threshold</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> counts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Largest motor current while homing, so that the axis only leans on a hard stop. Too much harms the mechanics, too little stalls on friction before the stop.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[HMT] Homing current limit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Distance moved after the home point was found, before the position becomes zero. Use it to leave the switch or stop and to put zero where the machine needs it.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[HMF] Homing offset move</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> setpoint units</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Makes the offset move with [CVL] and [CAL] instead of homing velocity. Saves time with long offsets; leave it off near obstacles.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[HFO] Full speed offset move</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Lowest position setpoint accepted after homing. Equal low and high limits switch the check off; too narrow stops good motion with a Motion range fault.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[HLL] Soft low limit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Highest position setpoint accepted after homing. Leave some travel between it and the mechanical end so that the axis can stop.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[HHL] Soft high limit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Starts the homing sequence: the axis moves. The drive must be enabled.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start homing now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Ends a running homing sequence; the axis stops.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Abort homing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Holding brake</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Time from switching the motor on to opening the brake, so that the motor holds the load first. Too short lets a hanging load drop, too long delays every start.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[BER] Brake release delay</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Time that the motor keeps holding after the brake was told to close. Too short lets a hanging load drop at every stop; set it a little over the brake&apos;s closing time.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[BED] Brake engage delay</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Time given to the axis to stop before the brake closes when the drive is disabled. Too short wears the brake, too long lets the axis run on.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[BDD] Brake deceleration delay</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> ms</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;The brake keeps the axis still while the drive finds the rotor angle at power-on. For hanging loads with a brake and no Hall sensors; without a brake it does nothing.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[BAP] Mech brake assisted phasing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Limit switches</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;What the drive does when a limit switch opens. Switch it on once both switches are wired and proven; unwired switches then block all motion.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[LSF] Limit switch function</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not in use</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop and hold</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop and disable (fault)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Whether motion is allowed while current flows in the enable and limit inputs or while it does not. Prefer normally closed, as a broken wire then stops the axis.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[CEI] Enable and limit input logic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Normally closed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Normally open</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MakerNews</name>
    <message>
        <source>The maker&apos;s server asks for an end of this connection. The drive is enabled, so it stays until the drive is disabled.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NodeDialog</name>
    <message>
        <source>Something at bus address %1 whose answers are damaged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 at bus address %2 in firmware upgrade mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 at bus address %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No drive answered. Check that:&lt;ul&gt;&lt;li&gt;the drive has its supply, also the logic supply if it has one&lt;/li&gt;&lt;li&gt;the bus cable is plugged in at both ends, and the last drive has its terminator&lt;/li&gt;&lt;li&gt;the chosen port is that of the Zetabus adapter&lt;/li&gt;&lt;li&gt;no two drives are set to the same address, and each address is 1 to 20&lt;/li&gt;&lt;/ul&gt;</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NumberField</name>
    <message>
        <source>This drive: %1 to %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is not a whole number; it stays at %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 has more than %2 decimals; it stays at %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number; it stays at %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is beyond this drive&apos;s limit of %2; it stays at %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is beyond the limit of %2; it stays at %3</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OutputFile</name>
    <message>
        <source>Full disk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>nobody reads from this pipe</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error writing to %1: %2.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ParameterPages</name>
    <message>
        <source>Sin(%1x)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cos(%1x)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Poles come in pairs: %1 was rounded to an even number.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Raised with [MCC]: the peak is never below it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lowered with [MMC]: it is never above the peak.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Raised with [HLL]: it is never below it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lowered with [HHL]: it is never above it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 per motor revolution</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1/s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1/s²</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>See guide &lt;a href=&quot;%1&quot;&gt;%2&lt;/a&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Using SinCos encoder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Using resolver</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hide advanced settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show advanced settings</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Parameters</name>
    <message>
        <source>Warning: the loaded file was saved without a drive. What nobody has typed into it are start values and nobody&apos;s settings: the drive&apos;s own stay in their place.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warning: the loaded file is saved on different device type &lt;b&gt;%1&lt;/b&gt; while connected device type is &lt;b&gt;%2&lt;/b&gt;. Some settings and their value ranges may be incompatible. Apply button might cause connection error if any parameter value is out of supported bounds.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attempt to load a file with unknown parameter %1. Possibly Velbrin version too old, try later version.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attempt to load a file with unusable %1 of parameter %2: &quot;%3&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error writing settings to file %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error reading settings from file %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> File was saved with Velbrin version %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unsupported file type or version. Try with later Velbrin version.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> It is incomplete: there are more settings in it than it counts.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PlotPage</name>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QuickFileIcons</name>
    <message>
        <source>Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 file</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Reader</name>
    <message>
        <source>The capture is damaged: its member &quot;%1&quot; is missing or is not what it should be.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The capture is damaged: its text breaks off or is no JSON.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is not a capture of Velbrin.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The capture was made by a newer version of Velbrin. Install that version to open it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The capture is damaged: its version is not known.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Report</name>
    <message>
        <source>The machine&apos;s own emergency stop works, and does not depend on the program.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Directions of motor, feedback and axis are right.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Limit switches and soft limits stop the axis before its ends.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The brake holds the axis when the drive is off.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Homing finds its place, again and again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Current limits suit motor, wiring and machine.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fault limits were tried: over current, tracking error, over speed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Guards and covers are in place.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The settings are saved to the drive and to a file.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ReportDialog</name>
    <message>
        <source>Commissioning report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Machine:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Changed settings:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Captures:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop test:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Setting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New drive</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your note</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>none: capture on fault, press the machine&apos;s stop, and choose the capture here</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Scope</name>
    <message>
        <source>raw</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show or hide this channel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click into a chart for the first cursor, Shift and click for the second.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>in grey</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No setting differs.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cursors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Step figures</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Axis sheet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Captures of this session</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings that differ</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Note</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whole record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All of the record in all charts (0)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Less of the record, larger (+, wheel)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>More of the record (-, wheel)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No cursors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Takes both cursors away (C)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Put AFF and VFF into the pages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>As a change that is not applied yet: the drive gets it with Apply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>take away</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No longer under the present capture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open capture...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A capture that was saved as a page or as columns</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Back to the pages (F11)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open out (F11)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The charts over the whole window, and back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Units of all charts and values (U)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Raw words</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>As recorded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>lay under</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In grey under the present capture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show this capture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rise</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Overshoot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settling</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RMS error</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SettingChanges</name>
    <message>
        <source>%1 grows more than threefold: %2 -&gt; %3.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SettingFacts</name>
    <message>
        <source>Enable and limit input logic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bus address offset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cogging compensation function</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Torque uniformity compensation function</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cogging compensation amplitude</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Torque uniformity compensation amplitude</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Feedback device resolution</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Position feedback device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Velocity feedback device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Torque bandwidth</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Velocity P gain</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Velocity I gain</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Position P gain</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Velocity feed-forward gain</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Acceleration feed-forward gain</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Position feed-forward gain</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Control mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Motor type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Active damping gain</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switches of enabling, direction and feedback</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Peak current</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Continuous current</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Over current fault threshold</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Over voltage fault threshold</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Under voltage fault threshold</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Position tracking error threshold</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Velocity tracking error threshold</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Over speed fault threshold</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Motion fault threshold</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Limit switch function</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Axis scale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Axis type &amp; units</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tracking fault delay</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Setpoint input</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Setpoint divider</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Setpoint multiplier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Acceleration limit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop deceleration limit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Velocity limit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recovery velocity limit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Motor resistance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Motor inductance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Thermal time constant</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pole count</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maximum speed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Setpoint offset nulling</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Homing method</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Homing velocity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Homing acceleration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Homing hard stop threshold</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Homing current limit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Soft high limit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Soft low limit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Homing offset move</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Override 1, register</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Override 2, register</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Override 3, register</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Override 1, value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Override 2, value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Override 3, value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Brake engage delay</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Brake release delay</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Brake deceleration delay</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SettingField</name>
    <message>
        <source>on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SettingFinder</name>
    <message>
        <source>[HWTYPE] Model, HW type ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[UID] Number that is unique to this drive</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[PIF] Control cycle frequency in Hz</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[FLAGS] Bit field of CEN, CED, FBI, AXI, CEP, CIS, FBH and BAP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[HOMING] Bit field of HME, HMS, HMI and HFO</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Parameter overrides, Ctrl+P</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>help only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find a setting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Mnemonic, name, unit, or a word of the help:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1%2: not on this model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1%2: %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No setting has these words</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StatePanels</name>
    <message>
        <source>Device state as last known, the connection has ended</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (last known)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StatusStrip</name>
    <message>
        <source>Drive</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What this fault means and what to do</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help on this fault</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gives the software enable, as on the Connect page.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disable [Esc]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Takes the power off the motor.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear faults</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clears the faults. Remove their cause first. Shortcut Alt+R</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TestingPage</name>
    <message>
        <source>Testing: move the axis and see what it does</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Test stimulus generation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Setpoint in setpoint units that the buttons beside it send and that the test stimulus holds for [TSD1].&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[TSP1] Target setpoint 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Moves to this setpoint at once.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set Abs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Adds this setpoint to the present one at once.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set Inc</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Time in seconds for which the test stimulus holds [TSP1].&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[TSD1] Delay 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shortcut Alt+1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shortcut Alt+3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Setpoint in setpoint units that the buttons beside it send and that the test stimulus holds for [TSD2].&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[TSP2] Target setpoint 2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Time in seconds for which the test stimulus holds [TSP2].&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[TSD2] Delay 2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shortcut Alt+2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shortcut Alt+4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Alternates the setpoint between the two targets for as long as it is ticked. The axis moves.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[TSE] Enable test stimulus</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Setpoint now: no data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Stops the test stimulus and sends setpoint 0.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set zero</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shortcut Alt+0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>When the cable or the connection is lost, up to five seconds of motion are still in the drive, and it stays enabled. Keep the machine&apos;s own stop within reach.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stimulus presets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Capture &amp;&amp; graphs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Capture signals selection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Torque setpoint [A]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Torque achieved [A]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Velocity setpoint</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Velocity achieved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Position setpoint</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Position achieved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tracking error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output voltage [%]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>HV bus voltage [VDC]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Debug 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Debug 2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flux current</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flux voltage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PWM1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PWM2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PWM3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Capture controls</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Trigger</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;What starts the recording.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Capture on setpoint change in positive direction</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Capture on setpoint change</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Capture on fault</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Capture instantly</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shortcut Alt+S</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start capture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sample rate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Samples a second. A lower rate records for a longer time.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>17500 Hz</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>10000 Hz</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>5000 Hz</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>2500 Hz</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1250 Hz</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>500 Hz</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>250 Hz</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>100 Hz</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Starts the next capture as soon as the graphs of the last one are shown.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Continuously repeating capture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Device state</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Clears the faults shown below. Remove their cause first.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Clear drive faults [Alt+R]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy device state to clipboard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status info may be easily pasted to email or support request message</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Physical inputs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fault register</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Setpoint last known: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 Hz</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Setpoint now: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Tour</name>
    <message>
        <source>make the folder %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it cannot be made</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>accept the disclaimer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>see the window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>watch the drive</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>search for drives</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>see a drive in the list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>choose the first drive</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>connect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>read the settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>edit a gain</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>see the change announced</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>apply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>see it applied</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>enable the drive</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>see the drive run</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>choose a sample rate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>start a capture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>see the capture wait</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>type a target</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>move to the target</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>see the setpoint</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>see the capture done</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>let the plot settle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>disable the drive</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>see the drive stopped</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>disconnect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>leave the change unsaved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>see the drive disconnected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>close the window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>show page %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>let page %1 settle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>save %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>nothing happened for %1 s</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TriesDesk</name>
    <message>
        <source>There is no plot to open out: capture something, or open a capture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open capture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Captures (*.html *.json *.csv);;All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save graphs to file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Width of a picture:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing saved: give the file a name that ends in .png, .csv or .html</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error writing graphs to file %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No report: connect to the drive that it is about, and let its settings be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Report (*.html)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Report written to %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing taken: this capture is of another type of drive.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing taken: this capture was opened from columns of text, which hold no settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The pages have these settings already</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings put into the pages: %1. The drive gets them with Apply</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TriesPanel</name>
    <message>
        <source>Overshoot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settling</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RMS error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tries</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Every capture of this session, the newest on top, with the settings in which they differ. A click shows it.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take these settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Puts the settings of the selected try into the pages. The drive gets them with Apply.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lay under</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Draws the selected try in grey under the newest one.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open capture...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Opens a capture that was saved as a page or as columns; no drive is needed.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Report...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;A commissioning report of this drive, with the captures that you choose: one page that prints well.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not known</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>none</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TuningPage</name>
    <message>
        <source>Tuning: how firmly the axis follows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Torque control</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Speed of the torque control; set it before the other gains. Higher is stiffer but louder and needs correct [MR] and [ML]; lower is quiet but limits the velocity gains.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[TBW] Torque bandwidth</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>100 Hz</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>200 Hz</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>300 Hz</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>400 Hz</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>500 Hz</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>700 Hz</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1000 Hz</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1500 Hz</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>2000 Hz</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>3000 Hz</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Damps a springy coupling between motor and load. Leave at 0; too much makes the axis noisy.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[AD] Active damping gain</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Velocity control</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Main gain against velocity error: raise it until the motor begins to buzz, then take back a third. Too much buzzes and oscillates, too little is soft and swings slowly.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[KVP] Velocity P gain</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Removes the error that a steady load leaves behind. Too much overshoots and swings, too little recovers slowly from load and friction.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[KVI] Velocity I gain</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Adds torque in proportion to velocity, against friction that grows with speed. Leave at 0 until the gains are set; too much makes the axis run ahead.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[VFF] Velocity feed-forward gain</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Adds torque in proportion to acceleration, so that the load&apos;s inertia causes no lag. Raise it until the error while accelerating is smallest; too much overshoots.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[AFF] Acceleration feed-forward gain</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Position control</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Velocity commanded per count of position error: raise it after the velocity gains. Too much overshoots and oscillates, too little lags and is soft.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[KPP] Position P gain</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;How much of the setpoint&apos;s velocity goes straight to the velocity control. 100 % follows without lag; less is smoother but lags at speed and can reach [FPT].&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[PFF] Position feed-forward gain</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> %</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Shows or hides the feed-forward gains and, on Keta Pro, the torque ripple compensation.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show advanced settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Displaying advanced parameters. If unsure, leave them disabled or zero. These parameters should be configured after all other parameters have been properly set.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Torque ripple compensation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Shape, in periods per revolution, of the torque added against cogging. Find it by trying at low speed; &quot;None&quot; switches it off.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[TRF1] Cogging compensation function</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Constant</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Size of that torque as current; the sign turns it over. Raise it until slow motion is smoothest; too much makes new ripple.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[TRA1] Cogging compensation amplitude</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> A</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Shape, in periods per revolution, of the correction to the motor&apos;s torque per ampere. Set it after cogging compensation; &quot;None&quot; switches it off.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[TRF2] Torque uniformity compensation function</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Size of that correction in percent of the torque commanded; the sign turns it over. Raise it under load until the ripple is smallest.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[TRA2] Torque uniformity compensation amplitude</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ValueMarks</name>
    <message>
        <source>Edited (1 change)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edited (%1 changes)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File loaded, not applied</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing edited</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not saved over power-off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Being saved over power-off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edits not saved over power-off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved over power-off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved over power-off: not known</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Where the values live</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save to drive</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keeps the applied settings over a power-off.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In the drive</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In no drive</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Applied before, lost at power-off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In the drive, lost at power-off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not in the drive yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In no file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In the file %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WelcomePage</name>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot;font-size:20pt; font-weight:600;&quot;&gt;Welcome to Velbrin&lt;/span&gt;&lt;br/&gt;&lt;span style=&quot;color:#5b6670;&quot;&gt;Version %VELBRIN_VERSION&lt;/span&gt;&lt;/p&gt;&lt;p&gt;Velbrin configures, tunes and starts up Tarnwell servo drives of the Torva, Keta and Keta Pro families over the Zetabus.&lt;/p&gt;&lt;p&gt;&lt;span style=&quot;font-size:13pt; font-weight:600;&quot;&gt;First steps&lt;/span&gt;&lt;/p&gt;&lt;table border=&quot;0&quot; cellspacing=&quot;0&quot; cellpadding=&quot;5&quot;&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;1&lt;/b&gt;&lt;/td&gt;&lt;td&gt;&lt;b&gt;Connect&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Choose the adapter, search the bus and pick your drive. Velbrin then reads all of its settings.&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;2&lt;/b&gt;&lt;/td&gt;&lt;td&gt;&lt;b&gt;Goals&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Say what the axis shall do: control mode, where the setpoint comes from, axis units and motion limits.&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;3&lt;/b&gt;&lt;/td&gt;&lt;td&gt;&lt;b&gt;Machine&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Describe what is bolted on: motor, feedback, homing, brake and limit switches.&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;4&lt;/b&gt;&lt;/td&gt;&lt;td&gt;&lt;b&gt;Tuning&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Set the torque bandwidth, then the velocity gains, then the position gains.&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;5&lt;/b&gt;&lt;/td&gt;&lt;td&gt;&lt;b&gt;Fault&amp;nbsp;limits&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Decide when the drive shall stop by itself to protect people, motor and machine.&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;6&lt;/b&gt;&lt;/td&gt;&lt;td&gt;&lt;b&gt;Testing&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Move the axis with a test stimulus, capture what it does and look at the graphs.&lt;/td&gt;&lt;/tr&gt;&lt;/table&gt;&lt;p&gt;Settings that you change are sent to the drive by &lt;b&gt;Apply settings&lt;/b&gt; and kept over a power-off by &lt;b&gt;Save settings on drive non-volatile memory&lt;/b&gt;. Save them to a file as well, so that a second machine or a spare drive is set up in a minute.&lt;/p&gt;&lt;p&gt;&lt;b&gt;Before anything moves:&lt;/b&gt; keep the emergency stop within reach and people out of the machine. &lt;b&gt;Esc&lt;/b&gt; disables the drive from anywhere in the program.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>busyDialog</name>
    <message>
        <source>Busy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p align=&quot;center&quot;&gt;Velbrin is working...&lt;br/&gt;Please wait few seconds&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>firmwareUpgradeDlg</name>
    <message>
        <source>Firmware upgrade</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Upgrade messages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Upgrade progress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset device parameters to factory state</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open file &amp;&amp; start upgrade</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>overrideParams</name>
    <message>
        <source>Override parameters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Parameter override table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Param address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Override value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Register that receives the first override value at every apply; 0 leaves the row unused. Only for registers without a control of their own; a wrong one can stop the drive.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Param address 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Raw value written to the first override register, without scaling. It is written after everything else and so wins over the pages.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Override value 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> raw</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Register that receives the second override value at every apply; 0 leaves the row unused. Only for registers without a control of their own; a wrong one can stop the drive.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Param address 2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Raw value written to the second override register, without scaling. It is written after everything else and so wins over the pages.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Override value 2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Register that receives the third override value at every apply; 0 leaves the row unused. Only for registers without a control of their own; a wrong one can stop the drive.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Param address 3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Raw value written to the third override register, without scaling. It is written after everything else and so wins over the pages.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Override value 3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Display custom parameter in status page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Register whose raw value is shown under the fault register from the next apply on; 0 shows none.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Param address to display</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click apply on main window to activate settings</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>selectBusNode</name>
    <message>
        <source>Connect device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>List of found &amp; powered drives in the Zetabus bus</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drives found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Choose device to connect. Device doesn&apos;t appear? See &lt;a href=&quot;https://wiki.tarnwell.example/wiki/Device_connection_troubleshooting&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#0057ae;&quot;&gt;troubleshooting&lt;/span&gt;&lt;/a&gt;.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
