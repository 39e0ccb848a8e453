<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!--
    SPDX-FileCopyrightText: Corvel print dialog authors
    SPDX-License-Identifier: Apache-2.0

    A table whose translations are keys themselves.
-->
<TS version="2.1" language="sv" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message><source>first</source><translation>second</translation></message>
    <message><source>second</source><translation>third</translation></message>
</context>
</TS>
