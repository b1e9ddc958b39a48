<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="uk" sourcelanguage="en">
<context>
    <name>CupsSupport</name>
    <message>
        <source>The options of %1 cannot be stored: they are too long, or hold a line break.</source>
        <translation>Не вдалося зберегти параметри %1: вони надто довгі або містять символ розриву рядка.</translation>
    </message>
    <message>
        <source>Password for %1 on %2? </source>
        <translation>Пароль користувача %1 на %2? </translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; cannot be reached.</source>
        <translation>Немає зв’язку з принтером «%1».</translation>
    </message>
    <message>
        <source>The print server did not answer in time.</source>
        <translation>Сервер друку не відповів вчасно.</translation>
    </message>
    <message>
        <source>The print server broke off in the middle of an answer.</source>
        <translation>Сервер друку перервав з’єднання посеред відповіді.</translation>
    </message>
</context>
<context>
    <name>ExtDialog</name>
    <message>
        <source>Select Extended Print Offset</source>
        <translation>Вибір додаткового зміщення друку</translation>
    </message>
    <message>
        <source>Offset:</source>
        <translation>Зміщення:</translation>
    </message>
    <message>
        <source>-0.75mm</source>
        <translation>-0.75мм</translation>
    </message>
    <message>
        <source>-0.50mm</source>
        <translation>-0.50мм</translation>
    </message>
    <message>
        <source>-0.25mm</source>
        <translation>-0.25мм</translation>
    </message>
    <message>
        <source> 0.00mm</source>
        <translation> 0.00мм</translation>
    </message>
    <message>
        <source> 0.25mm</source>
        <translation> 0.25мм</translation>
    </message>
    <message>
        <source> 0.50mm</source>
        <translation> 0.50мм</translation>
    </message>
    <message>
        <source> 0.75mm</source>
        <translation> 0.75мм</translation>
    </message>
</context>
<context>
    <name>NumberField</name>
    <message>
        <source>%1 to %2 inches</source>
        <translation>Від %1 до %2 дюйма</translation>
    </message>
    <message>
        <source>%1 inches = %2 mm</source>
        <translation>%1 дюйма = %2 мм</translation>
    </message>
    <message>
        <source>Only numbers from %1 to %2, with two decimals at most.</source>
        <translation>Лише числа від %1 до %2, щонайбільше з двома знаками після коми.</translation>
    </message>
    <message>
        <source>%1 to %2 dots</source>
        <translation>Від %1 до %2 точок</translation>
    </message>
    <message>
        <source>%1 dots = %2 mm</source>
        <translation>%1 точок = %2 мм</translation>
    </message>
    <message>
        <source>Only whole numbers from %1 to %2.</source>
        <translation>Лише цілі числа від %1 до %2.</translation>
    </message>
</context>
<context>
    <name>PasswordDialog</name>
    <message>
        <source>Password</source>
        <translation>Пароль</translation>
    </message>
    <message>
        <source>The print server asks for a user name and a password.</source>
        <translation>Сервер друку просить вказати ім’я користувача і пароль.</translation>
    </message>
    <message>
        <source>They were not accepted. Please try again.</source>
        <translation>Ім’я користувача або пароль не прийнято. Повторіть спробу.</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Ім’я користувача:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Пароль:</translation>
    </message>
</context>
<context>
    <name>Preset</name>
    <message>
        <source>Warning</source>
        <translation>Попередження</translation>
    </message>
    <message>
        <source>%1 cannot be modified.</source>
        <translation>%1 не можна змінити.</translation>
    </message>
</context>
<context>
    <name>Presets</name>
    <message>
        <source>Warning</source>
        <translation>Попередження</translation>
    </message>
    <message>
        <source>%1 cannot be deleted.</source>
        <translation>%1 не можна вилучити.</translation>
    </message>
</context>
<context>
    <name>Preview</name>
    <message>
        <source>DL</source>
        <translation>DL</translation>
    </message>
</context>
<context>
    <name>PrintDialog</name>
    <message>
        <source>Print</source>
        <translation>Друк</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Назва:</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Властивості</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Стан:</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Готовий</translation>
    </message>
    <message>
        <source>Use Default</source>
        <translation>Типовий</translation>
    </message>
    <message>
        <source>Type:</source>
        <translation>Тип:</translation>
    </message>
    <message>
        <source>Vantry</source>
        <translation>Vantry</translation>
    </message>
    <message>
        <source>Where:</source>
        <translation>Місце:</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>Тут</translation>
    </message>
    <message>
        <source>Print to file</source>
        <translation>Друк до файла</translation>
    </message>
    <message>
        <source>Number of Copies:</source>
        <translation>Кількість копій:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Гаразд</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Скасувати</translation>
    </message>
    <message>
        <source>Request Print Job Now</source>
        <translation>Надрукувати зараз?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Так</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Ні</translation>
    </message>
    <message>
        <source>Do you want to change the current printer to 
</source>
        <translation>Змінити поточний принтер на 
</translation>
    </message>
    <message>
        <source> ?</source>
        <translation>?</translation>
    </message>
    <message>
        <source>Printer Change</source>
        <translation>Зміна принтера</translation>
    </message>
</context>
<context>
    <name>PrintPropertiesDialog</name>
    <message>
        <source>PrintPropertiesDialog</source>
        <translation>PrintPropertiesDialog</translation>
    </message>
    <message>
        <source>Page Setup</source>
        <translation>Сторінка</translation>
    </message>
    <message>
        <source>User-defined Page Size</source>
        <translation>Нетиповий розмір сторінки</translation>
    </message>
    <message>
        <source>Width:</source>
        <translation>Ширина:</translation>
    </message>
    <message>
        <source>inches</source>
        <translation>дюйма</translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>Висота:</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Попередній перегляд</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Орієнтація</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Книжкова</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Альбомна</translation>
    </message>
    <message>
        <source>Portrait 180°</source>
        <translation>Книжкова 180°</translation>
    </message>
    <message>
        <source>Landscape 180°</source>
        <translation>Альбомна 180°</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Ефекти</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>Дзеркально</translation>
    </message>
    <message>
        <source>Negative</source>
        <translation>Негатив</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Набір параметрів</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Назва:</translation>
    </message>
    <message>
        <source>Manage...</source>
        <translation>Керування...</translation>
    </message>
    <message>
        <source>Speed Settings</source>
        <translation>Швидкість друку</translation>
    </message>
    <message>
        <source>0</source>
        <translation>0</translation>
    </message>
    <message>
        <source>Darkness</source>
        <translation>Щільність друку</translation>
    </message>
    <message>
        <source>Copyright © 2026 The PropertiesDialog authors</source>
        <translation>Copyright © 2026 The PropertiesDialog authors</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Набори</translation>
    </message>
    <message>
        <source>Presets allow you to save your print settings with a name so
that you can quickly switch between different configurations.</source>
        <translation>Набори зберігають параметри друку під назвою,
щоб швидко перемикатися між ними.</translation>
    </message>
    <message>
        <source>Preset List:</source>
        <translation>Список наборів:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>Опис:</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Створити</translation>
    </message>
    <message>
        <source>Update...</source>
        <translation>Оновити...</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Вилучити</translation>
    </message>
    <message>
        <source>Stock</source>
        <translation>Носій</translation>
    </message>
    <message>
        <source>Media Settings</source>
        <translation>Параметри носія</translation>
    </message>
    <message>
        <source>MediaType:</source>
        <translation>Тип носія:</translation>
    </message>
    <message>
        <source>Black Mark Width:</source>
        <translation>Ширина чорної мітки:</translation>
    </message>
    <message>
        <source>Black Mark Offset:</source>
        <translation>Зміщення чорної мітки:</translation>
    </message>
    <message>
        <source>Print Method:</source>
        <translation>Спосіб друку:</translation>
    </message>
    <message>
        <source>Media Handling</source>
        <translation>Обробка носія</translation>
    </message>
    <message>
        <source>Cut:</source>
        <translation>Відрізання:</translation>
    </message>
    <message>
        <source>Feed:</source>
        <translation>Подавання:</translation>
    </message>
    <message>
        <source>Backfeed:</source>
        <translation>Зворотне подавання:</translation>
    </message>
    <message>
        <source>dots</source>
        <translation>точок</translation>
    </message>
    <message>
        <source>Overlap:</source>
        <translation>Перекриття:</translation>
    </message>
    <message>
        <source>Position Adjustments</source>
        <translation>Коригування розташування</translation>
    </message>
    <message>
        <source>Stop Position:</source>
        <translation>Позиція зупинки:</translation>
    </message>
    <message>
        <source>Start Position:</source>
        <translation>Початкова позиція:</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Додатково</translation>
    </message>
    <message>
        <source>User Commands</source>
        <translation>Команди користувача</translation>
    </message>
    <message>
        <source>Start of Job</source>
        <translation>Початок завдання</translation>
    </message>
    <message>
        <source>Start of Label</source>
        <translation>Початок етикетки</translation>
    </message>
    <message>
        <source>End of Label</source>
        <translation>Кінець етикетки</translation>
    </message>
    <message>
        <source>End of Job</source>
        <translation>Кінець завдання</translation>
    </message>
    <message>
        <source>Position Adjustment</source>
        <translation>Коригування розташування</translation>
    </message>
    <message>
        <source>Horizontal Offset:</source>
        <translation>Горизонтальне зміщення:</translation>
    </message>
    <message>
        <source>Vertical Offset:</source>
        <translation>Вертикальне зміщення:</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Про програму</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Версія</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Дата</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>Гаразд</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Скасувати</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Застосувати</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Довідка</translation>
    </message>
    <message>
        <source>Continuous</source>
        <translation>Безперервний</translation>
    </message>
    <message>
        <source>Labels With Gaps</source>
        <translation>Етикетки з проміжками</translation>
    </message>
    <message>
        <source>Labels With Marks</source>
        <translation>Етикетки з мітками</translation>
    </message>
    <message>
        <source>No Cut</source>
        <translation>Не відрізати</translation>
    </message>
    <message>
        <source>Cut After Job</source>
        <translation>Відрізати після завдання</translation>
    </message>
    <message>
        <source>Cut After Page</source>
        <translation>Відрізати після сторінки</translation>
    </message>
    <message>
        <source>Vertical Offset</source>
        <translation>Вертикальне зміщення</translation>
    </message>
    <message>
        <source>Stop Position</source>
        <translation>Позиція зупинки</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Версія %1</translation>
    </message>
    <message>
        <source>%1</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>Gap Size</source>
        <translation>Розмір проміжку</translation>
    </message>
    <message>
        <source>Gap Offset</source>
        <translation>Зміщення проміжку</translation>
    </message>
    <message>
        <source>Black Mark Size</source>
        <translation>Розмір чорної мітки</translation>
    </message>
    <message>
        <source>Black Mark Offset</source>
        <translation>Зміщення чорної мітки</translation>
    </message>
    <message>
        <source>New Preset</source>
        <translation>Новий набір</translation>
    </message>
    <message>
        <source>New Preset %1</source>
        <translation>Новий набір %1</translation>
    </message>
    <message>
        <source>Orientation: %1</source>
        <translation>Орієнтація: %1</translation>
    </message>
    <message>
        <source>Orientation: %1, mirrored</source>
        <translation>Орієнтація: %1, дзеркально</translation>
    </message>
    <message>
        <source>Orientation: %1, negative</source>
        <translation>Орієнтація: %1, негатив</translation>
    </message>
    <message>
        <source>Orientation: %1, mirrored and negative</source>
        <translation>Орієнтація: %1, дзеркально, негатив</translation>
    </message>
    <message>
        <source>The driver of this printer does not have this setting.</source>
        <translation>У драйвері цього принтера немає такого параметра.</translation>
    </message>
    <message>
        <source>From %1 x %2 to %3 x %4 inches.</source>
        <translation>Від %1 x %2 до %3 x %4 дюйма.</translation>
    </message>
    <message>
        <source>The driver of this printer accepts only the page sizes that it lists.</source>
        <translation>Драйвер цього принтера приймає лише розміри сторінок зі свого списку.</translation>
    </message>
    <message>
        <source>Left to the printer (%1).</source>
        <translation>На розсуд принтера (%1).</translation>
    </message>
    <message>
        <source>Empty: left to the printer (%1).</source>
        <translation>Порожньо: на розсуд принтера (%1).</translation>
    </message>
    <message>
        <source>The driver of this printer has no label settings. Only the page size and the orientation take effect.</source>
        <translation>У драйвері цього принтера немає параметрів етикеток. Діють лише розмір сторінки та орієнтація.</translation>
    </message>
    <message>
        <source>%1 and %2 cannot be used together.</source>
        <translation>%1 і %2 не можна використовувати разом.</translation>
    </message>
    <message>
        <source>This preset cannot hold the printer&apos;s present settings: %1. Choosing it would change them.</source>
        <translation>Цей набір не може зберігати поточні параметри принтера: %1. Якщо його вибрати, їх буде змінено.</translation>
    </message>
</context>
<context>
    <name>PrinterList</name>
    <message>
        <source>Label Printer Properties</source>
        <translation>Властивості принтера етикеток</translation>
    </message>
    <message>
        <source>Choose a &amp;printer:</source>
        <translation>Виберіть &amp;принтер:</translation>
    </message>
    <message>
        <source>Queue</source>
        <translation>Черга</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Опис</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Розташування</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Стан</translation>
    </message>
    <message>
        <source>Not accepting jobs</source>
        <translation>Не приймає завдання</translation>
    </message>
    <message>
        <source>Idle</source>
        <translation>Бездіяльний</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Друк</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Зупинено</translation>
    </message>
    <message>
        <source>Print &amp;Test Label</source>
        <translation>Надрукувати &amp;тестову етикетку</translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>Shows and changes the settings of a label printer.</source>
        <translation>Показує та змінює параметри принтера етикеток.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>НАЗВА</translation>
    </message>
    <message>
        <source>Lists the queues, the default one marked with an asterisk.</source>
        <translation>Показує список черг друку; типову позначено зірочкою.</translation>
    </message>
    <message>
        <source>unexpected argument &quot;%1&quot;</source>
        <translation>неочікуваний аргумент «%1»</translation>
    </message>
    <message>
        <source>there is no printer &quot;%1&quot;; --list names those there are</source>
        <translation>принтера «%1» немає; --list показує наявні</translation>
    </message>
    <message>
        <source>Label Printer Properties</source>
        <translation>Властивості принтера етикеток</translation>
    </message>
    <message>
        <source>The queue, instead of one chosen from a list.</source>
        <translation>Черга друку замість вибраної зі списку.</translation>
    </message>
    <message>
        <source>Prints a label to adjust offsets and darkness by, on the queue or the default one.</source>
        <translation>Друкує у вказаній або типовій черзі етикетку для коригування зміщень і щільності друку.</translation>
    </message>
    <message>
        <source>Shows this help.</source>
        <translation>Показує цю довідку.</translation>
    </message>
    <message>
        <source>Shows the version.</source>
        <translation>Показує версію.</translation>
    </message>
    <message>
        <source>The print service cannot be reached: %1</source>
        <translation>Немає зв’язку зі службою друку: %1</translation>
    </message>
    <message>
        <source>No printers have been set up.</source>
        <translation>Не налаштовано жодного принтера.</translation>
    </message>
    <message>
        <source>The test label could not be printed: %1</source>
        <translation>Не вдалося надрукувати тестову етикетку: %1</translation>
    </message>
    <message>
        <source>there is no default printer; name one with -p</source>
        <translation>немає типового принтера; вкажіть принтер за допомогою -p</translation>
    </message>
    <message>
        <source>The test label was sent to %1.</source>
        <translation>Тестову етикетку надіслано на %1.</translation>
    </message>
    <message>
        <source>no window can be shown: neither DISPLAY nor WAYLAND_DISPLAY is set</source>
        <translation>неможливо показати вікно: не встановлено ні DISPLAY, ні WAYLAND_DISPLAY</translation>
    </message>
    <message>
        <source>no window can be shown with %1</source>
        <translation>неможливо показати вікно з %1</translation>
    </message>
    <message>
        <source>The default printer &quot;%1&quot; does not exist.</source>
        <translation>Типового принтера «%1» не існує.</translation>
    </message>
    <message>
        <source>The presets could not be saved.</source>
        <translation>Не вдалося зберегти набори.</translation>
    </message>
    <message>
        <source>The settings could not be saved: %1</source>
        <translation>Не вдалося зберегти параметри: %1</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 і %2</translation>
    </message>
    <message>
        <source>These settings cannot be used together:</source>
        <translation>Ці параметри не можна використовувати разом:</translation>
    </message>
    <message>
        <source>Do you want to change them to the following?</source>
        <translation>Змінити їх на такі?</translation>
    </message>
</context>
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Usage: %1</source>
        <translation>Використання: %1</translation>
    </message>
    <message>
        <source>[options]</source>
        <translation>[параметри]</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Параметри:</translation>
    </message>
    <message>
        <source>Unknown option &apos;%1&apos;.</source>
        <translation>Невідомий параметр «%1».</translation>
    </message>
    <message>
        <source>Missing value after &apos;%1&apos;.</source>
        <translation>Пропущено значення після «%1».</translation>
    </message>
    <message>
        <source>Unexpected value after &apos;%1&apos;.</source>
        <translation>Неочікуване значення після «%1».</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>This preset contains this driver&apos;s current settings.</source>
        <translation>Цей набір містить поточні параметри цього драйвера.</translation>
    </message>
    <message>
        <source>This preset contains this driver&apos;s original default settings.</source>
        <translation>Цей набір містить початкові типові параметри цього драйвера.</translation>
    </message>
    <message>
        <source>%1 Printing Preferences</source>
        <translation>Параметри друку: %1</translation>
    </message>
</context>
<context>
    <name>TestLabel</name>
    <message>
        <source>Continuous</source>
        <translation>Безперервний</translation>
    </message>
    <message>
        <source>Labels With Gaps</source>
        <translation>Етикетки з проміжками</translation>
    </message>
    <message>
        <source>Labels With Marks</source>
        <translation>Етикетки з мітками</translation>
    </message>
    <message>
        <source>No Cut</source>
        <translation>Не відрізати</translation>
    </message>
    <message>
        <source>Cut After Job</source>
        <translation>Відрізати після завдання</translation>
    </message>
    <message>
        <source>Cut After Page</source>
        <translation>Відрізати після сторінки</translation>
    </message>
    <message>
        <source>Darkness %1</source>
        <translation>Щільність друку %1</translation>
    </message>
    <message>
        <source>Speed %1</source>
        <translation>Швидкість %1</translation>
    </message>
    <message>
        <source>Offset %1, %2 dots</source>
        <translation>Зміщення %1, %2 точок</translation>
    </message>
    <message>
        <source>Default settings</source>
        <translation>Типові параметри</translation>
    </message>
    <message>
        <source>%1 x %2 mm</source>
        <translation>%1 x %2 мм</translation>
    </message>
    <message>
        <source>Test label</source>
        <translation>Тестова етикетка</translation>
    </message>
</context>
</TS>
