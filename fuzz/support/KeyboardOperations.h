#pragma once

class DialogDeviceConnect;
class FuzzInput;

/// Calls the operation of the connection that the input names, with arguments from the input.
void callOperation(FuzzInput &input, DialogDeviceConnect &connection);
